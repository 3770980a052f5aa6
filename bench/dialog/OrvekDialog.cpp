// SPDX-License-Identifier: Apache-2.0
// Our window on a printer description or a queue. Prints the milliseconds from session start to the
// first painted frame.  orvek-dialog ARGUMENTS-OF-ORVEK-PRINT...

#include "bench/dialog/FirstPaint.h"
#include "host/cli/CommandLine.h"
#include "host/cli/SessionStart.h"
#include "host/cli/Window.h"
#include "host/dialog/PrintDialog.h"
#include "host/printers/HelperProcess.h"

// As the program does while the toolkit is loaded, which belongs to neither dialog.
static void startHelper() {
  orvek::SocketProgram helper;
  orvek::startWithSocket(orvek::helperProgram("orvek-print-server"), &helper);
  orvek::HelperProcess::adopt(helper);
}

int main(int argc, char **argv) {
  startHelper();
  int toolkitArgc = 1;
  QApplication application(toolkitArgc, argv);
  QByteArrayList words;
  for (int i = 1; i < argc; ++i) words << argv[i];
  const auto line = orvek::parseCommandLine(words);
  if (!line) return 2;
  orvek::bench::warmUp();
  QElapsedTimer clock;
  clock.start();
  auto session = orvek::startSession(line.value());
  if (!session) {
    std::fprintf(stderr, "%s\n", qPrintable(session.failure().line()));
    return 3;
  }
  orvek::PrintDialog dialog(*session.value(),
                            orvek::dialogSetupFor(line.value(), *session.value()));
  const orvek::bench::FirstPaint watch(&dialog, clock);
  dialog.show();
  return QApplication::exec();
}
