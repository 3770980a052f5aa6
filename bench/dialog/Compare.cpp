// SPDX-License-Identifier: Apache-2.0
// Opens Qt's own print dialog and ours in turn, each time in a new process, on the same queues of a
// private print server, and prints one table with the ratio of the medians.
//   compare-dialogs [RUNS]

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "tests/support/PrivateCups.h"

namespace {

using orvek::testing::PrivateCups;

constexpr int defaultRuns = 9;
constexpr int patience = 60000;
constexpr int optionsOfSmallestPPD = 5;

// The 6180's PPD with `count` further options of four choices each.
QByteArray withOptions(const QByteArray &ppd, int count) {
  QByteArray more = "*OpenGroup: BenchExtra/More\n";
  for (int i = 0; i < count; ++i) {
    const QByteArray name = "BenchOption" + QByteArray::number(i);
    more += "*OpenUI *" + name + "/Option " + QByteArray::number(i) +
            ": PickOne\n*OrderDependency: 50 AnySetup *" + name + "\n*Default" + name + ": One\n";
    for (const char *choice : {"One", "Two", "Three", "Four"}) {
      more += "*" + name + " " + choice + "/" + choice + ": \"<</" + name + "(" + choice +
              ")>>setpagedevice\"\n";
    }
    more += "*CloseUI: *" + name + "\n";
  }
  return ppd + more + "*CloseGroup: BenchExtra\n";
}

QString program(const char *name) {
  return QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(name);
}

// The milliseconds a program printed; below 0 where it failed.
double timeOf(const QString &path, const QStringList &arguments) {
  QProcess process;
  process.start(path, arguments);
  if (!process.waitForFinished(patience) || process.exitCode() != 0) {
    std::fprintf(stderr, "%s: %s\n", qPrintable(path), process.readAllStandardError().constData());
    return -1;
  }
  return process.readAllStandardOutput().trimmed().toDouble();
}

double median(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

void compare(const char *label, int runs, const QString &queue, const QStringList &ours) {
  std::vector<double> reference;
  std::vector<double> own;
  timeOf(program("toolkit-dialog"), {queue});  // one of each to warm the disk's cache
  timeOf(program("orvek-dialog"), ours);
  for (int i = 0; i < runs; ++i) {
    reference.push_back(timeOf(program("toolkit-dialog"), {queue}));
    own.push_back(timeOf(program("orvek-dialog"), ours));
  }
  std::printf("%-34s %10.1f %10.1f %8.2f\n", label, median(reference), median(own),
              median(own) / median(reference));
  std::fflush(stdout);
}

void compareWithOptions(PrivateCups &server, const QByteArray &ppd, int count, int runs) {
  const QString queue = QStringLiteral("bench-%1").arg(count);
  const QString file = QDir::temp().filePath(queue + QStringLiteral(".ppd"));
  QFile written(file);
  if (!written.open(QIODevice::WriteOnly)) return;
  written.write(withOptions(ppd, count));
  written.close();
  server.addQueue(queue, file);
  const QByteArray size = QByteArray::number(count) + " more options";
  compare(QByteArray(size + ", PPD file").constData(), runs, queue,
          {QStringLiteral("--ppd"), file});
  compare(QByteArray(size + ", queue").constData(), runs, queue, {QStringLiteral("-d"), queue});
  QFile::remove(file);
}

}  // namespace

int main(int argc, char **argv) {
  QCoreApplication application(argc, argv);
  if (!PrivateCups::obstacle().isEmpty()) {
    std::fprintf(stderr, "%s\n", qPrintable(PrivateCups::obstacle()));
    return 1;
  }
  const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : defaultRuns;
  QFile ppd(QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"));
  if (!ppd.open(QIODevice::ReadOnly)) return 1;
  const QByteArray text = ppd.readAll();
  PrivateCups server;
  std::printf("start to first paint, median ms    %10s %10s %8s\n", "QPrintDialog", "ours",
              "ratio");
  for (const int count : {optionsOfSmallestPPD, 102, 1002, 5002}) {
    compareWithOptions(server, text, count, runs);
  }
}
