// SPDX-License-Identifier: Apache-2.0
// The same document to the same queue, each time by a new process, until that ends.

#include <QElapsedTimer>
#include <QProcess>

#include "bench/Measure.h"
#include "bench/dialog/Benches.h"

namespace bench {
namespace {

constexpr double goal = 3;
const QString document = QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf");

double run(const QString &path, const QStringList &arguments) {
  QElapsedTimer clock;
  clock.start();
  QProcess process;
  process.start(path, arguments);
  if (!process.waitForFinished() || process.exitCode() != 0) {
    std::fprintf(stderr, "%s: %s\n", qPrintable(path), process.readAllStandardError().constData());
    std::exit(1);
  }
  return static_cast<double>(clock.nsecsElapsed()) / 1e9;
}

}  // namespace

void jobs(orvek::test::PrivateCups &server, int rounds) {
  const QString queue = QStringLiteral("bench-jobs");
  // Held jobs, so that no filter is running beside the next one.
  server.addQueue(queue, QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"));
  const QStringList wanted{QStringLiteral("-d"), queue, QStringLiteral("-o"),
                           QStringLiteral("job-hold-until=indefinite"), document};
  const QStringList headless{QStringLiteral("--headless"), QStringLiteral("--print")};
  line("job without a window, process", "lp",
       compareMedians(
           rounds, [&] { return run(program("orvek-print"), headless + wanted); },
           [&] { return run(QStringLiteral("lp"), wanted); }),
       1, "ms", goal);
}

}  // namespace bench
