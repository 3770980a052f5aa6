// SPDX-License-Identifier: Apache-2.0
// Starts two programs in turn, each with a dialog, and lets them say when it was painted.

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <array>

#include "bench/Measure.h"
#include "bench/dialog/Benches.h"

namespace bench {
namespace {

constexpr int patience = 60000;

struct Goal {
  int options;
  double ratio;
};
constexpr std::array<Goal, 4> goals{{{5, 0.6}, {102, 0.6}, {1002, 0.4}, {5002, 0.3}}};

struct Started {
  double wholeProcess;
  double withinProcess;
};

// Both times in seconds; the program says the second in milliseconds once its window is painted.
Started start(const QString &path, const QStringList &arguments) {
  QElapsedTimer clock;
  clock.start();
  QProcess process;
  process.start(path, arguments);
  process.waitForReadyRead(patience);
  const double whole = static_cast<double>(clock.nsecsElapsed()) / 1e9;
  if (!process.waitForFinished(patience) || process.exitCode() != 0) {
    std::fprintf(stderr, "%s: %s\n", qPrintable(path), process.readAllStandardError().constData());
    std::exit(1);
  }
  return {whole, process.readAllStandardOutput().trimmed().toDouble() / 1e3};
}

void compareStarts(const std::string &what, int rounds, const QStringList &own,
                   const QString &queue, double goal) {
  const auto time = [&](double Started::*which) {
    return compareMedians(
        rounds, [&] { return start(program("orvek-dialog"), own).*which; },
        [&] { return start(program("toolkit-dialog"), {queue}).*which; });
  };
  line(what, "QPrintDialog", time(&Started::withinProcess), 1, "ms", goal);
  line(what + ", process", "QPrintDialog", time(&Started::wholeProcess), 1, "ms", 0);
}

}  // namespace

void firstPaint(orvek::test::PrivateCups &server, const QString &folder, int rounds) {
  for (const Goal &goal : goals) {
    const QString ppd = ppdWithOptions(folder, goal.options);
    const QString queue = QStringLiteral("bench-%1").arg(goal.options);
    server.addQueue(queue, ppd);
    const std::string what = "paint, " + std::to_string(goal.options) + " options";
    compareStarts(what + ", queue", rounds, {QStringLiteral("-d"), queue}, queue, goal.ratio);
    compareStarts(what + ", file", rounds, {QStringLiteral("--ppd"), ppd}, queue, 0);
  }
}

}  // namespace bench
