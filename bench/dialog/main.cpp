// SPDX-License-Identifier: Apache-2.0
// The table of the dialog, on queues of a private print server.  compare-dialogs [ROUNDS]

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "bench/Measure.h"
#include "bench/dialog/Benches.h"

namespace bench {

QString program(const char *name) {
  return QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(name);
}

QString ppdWithOptions(const QString &folder, int count) {
  QFile ppd(QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"));
  if (!ppd.open(QIODevice::ReadOnly)) std::abort();
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
  const QString path = QStringLiteral("%1/with-%2.ppd").arg(folder).arg(count);
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly)) std::abort();
  file.write(ppd.readAll() + more + "*CloseGroup: BenchExtra\n");
  return path;
}

}  // namespace bench

int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  if (const QString why = orvek::test::PrivateCups::obstacle(); !why.isEmpty()) {
    std::fprintf(stderr, "%s\n", qPrintable(why));
    return 1;
  }
  constexpr int usualRounds = 15;
  const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : usualRounds;
  const QTemporaryDir folder;
  orvek::test::PrivateCups server;
  bench::head();
  bench::picks(folder.path());
  bench::jobs(server, rounds);
  bench::firstPaint(server, folder.path(), rounds);
  bench::windows(server, folder.path(), rounds);
  bench::windowsWithoutHelp(server, folder.path(), rounds);
}
