// SPDX-License-Identifier: Apache-2.0
// Reads the command line, decides whether a window is wanted, and runs.

#include "host/cli/Program.h"

#include <QApplication>

#include "host/cli/CommandLine.h"
#include "host/cli/Console.h"
#include "host/cli/Headless.h"
#include "host/cli/Help.h"
#include "host/cli/OutputCheck.h"
#include "host/cli/Presets.h"
#include "host/cli/PrinterListing.h"
#include "host/cli/SessionStart.h"
#include "host/cli/ToolkitMessages.h"
#include "host/cli/Window.h"
#include "host/printers/HelperProcess.h"
#include "host/translations/Translations.h"
#include "platform/system/FileSizeLimit.h"
#include "platform/system/MainBundle.h"

namespace {

using namespace orvek;

constexpr const char *programName = "orvek-print";

// None of these may need a display.
bool needsNoWindow(const CommandLine &line) {
  return line.headless || line.listPrinters || line.listPresets || !line.deletePreset.isNull() ||
         !line.savePreset.isNull();
}

// Without a picture nobody sees letters, and looking through the machine's fonts would take longer
// than all the rest of the run; the minimal platform has none.
const char *platformWithoutDisplay(const CommandLine &line) {
  return line.screenshot.isNull() ? "minimal" : "offscreen";
}

Status run(const CommandLine &line) {
  if (line.listPrinters) return listPrintersAsAsked(line);
  if (line.listPresets) return listPresets();
  if (!line.deletePreset.isNull()) return deletePreset(line.deletePreset);
  if (const Status checked = checkOutputs(line); !checked) return checked;
  if (needsNoWindow(line)) return runHeadless(line);
  return runWindow(line);
}

// The toolkit ends the program where it finds no display; this says it first.
Status checkDisplay() {
  for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    if (!qEnvironmentVariableIsEmpty(variable)) return {};
  }
  return Failure{FailureKind::Io, QStringLiteral("window"),
                 QStringLiteral("there is no display (DISPLAY is not set), use --headless")};
}

bool hasSession(const CommandLine &line) {
  return !line.listPrinters && !line.listPresets && line.deletePreset.isNull();
}

int start(const CommandLine &line, char **argv) {
  if (!needsNoWindow(line)) {
    if (const Status checked = checkDisplay(); !checked) return report(checked.failure());
  }
  // The toolkit takes longer to get ready than a print server to answer.
  if (hasSession(line)) askAhead(line);
  if (needsNoWindow(line)) qputenv("QT_QPA_PLATFORM", platformWithoutDisplay(line));
  shapeToolkitMessages();
  // The options are the program's own; the toolkit must not look for its among them.
  int toolkitArgc = 1;
  char *toolkitArgv[] = {argv[0], nullptr};
  QApplication application(toolkitArgc, toolkitArgv);
  QApplication::setApplicationName(QLatin1String(programName));
  // Whose windows these are, for desktops that go by the menu entry: its icon is theirs.
  QApplication::setDesktopFileName(QLatin1String(programName));
  installTranslations();
  setMainBundleInfo(
      QJsonObject{{QLatin1String(kCFBundleExecutableKey), QLatin1String(programName)}});
  const Status done = run(line);
  return done ? 0 : report(done.failure());
}

}  // namespace

extern "C" int orvekPrint(int argc, char **argv, orvek::SocketProgram helper) {
  outliveFileSizeLimits();
  HelperProcess::adopt(helper);
  QByteArrayList words;
  for (int i = 1; i < argc; ++i) words << argv[i];
  const Result<CommandLine> line = parseCommandLine(words);
  if (!line) return report(line.failure());
  if (line.value().help || line.value().version) {
    const Status shown = writeToStandardOutput(line.value().help ? helpText() : versionText());
    return shown ? 0 : report(shown.failure());
  }
  return start(line.value(), argv);
}
