// SPDX-License-Identifier: Apache-2.0
// PPD files through a whole session: opened, marked, shown by the real panel, picked in, undone,
// and inspected.

#include <QApplication>
#include <QJsonDocument>

#include "fuzz/MemoryFolder.h"
#include "fuzz/Quiet.h"
#include "host/cli/Inspection.h"
#include "host/session/Availability.h"
#include "plugin/OrvekFinishingPlugin.h"

namespace {

using namespace orvek;
using fuzz::require;
using fuzz::requireReason;

constexpr int mostOptions = 12;
constexpr int mostChoices = 3;

PluginList plugins() {
  static const std::shared_ptr<Bundle> bundle =
      Bundle::atPath(QStringLiteral(ORVEK_BUNDLE_DIR), {QStringLiteral("en")});
  require(bundle != nullptr);
  auto plugin = std::make_shared<LoadedPlugin>();
  plugin->info.bundle = bundle;
  plugin->factory = std::make_unique<OrvekFinishingPlugin>();
  require(plugin->factory->initWithBundle(bundle.get()));
  return {plugin};
}

/// Names are bytes; what is no UTF-8 has no spelling that leads back to it.
bool isText(const QString &name) {
  return !name.contains(QChar::ReplacementCharacter);
}

void requireInspection(PrintSession &session) {
  const QJsonObject state = inspect(session);
  const QJsonDocument again = QJsonDocument::fromJson(QJsonDocument(state).toJson());
  require(again.isObject() && again.object().keys() == state.keys());
  require(state.value(QStringLiteral("marks")).isObject());
}

void requireMarks(const PrintSession &session) {
  const PrinterDescription &printer = session.marks().printer();
  for (const OptionChoice &mark : session.marks().all()) {
    if (!isText(mark.option) || !isText(mark.choice) || mark.choice.isEmpty()) continue;
    require(printer.has(mark.option));
    require(printer.spelled(mark.option, mark.choice).has_value());
  }
}

// What is picked is marked or nothing is, as a trial said before, and a step back leads back.
void pickAndUndo(PrintSession &session, const OptionChoice &choice) {
  const MarksSnapshot marks = session.marks().snapshot();
  const TicketValues ticket = session.ticket().values();
  const Resolution expected = tryPick(session.marksToTry(), choice);
  require(session.marks().snapshot() == marks);
  require(session.pick(choice.option, choice.choice) == expected.marked);
  requireMarks(session);
  const bool changed = session.marks().snapshot() != marks || session.ticket().values() != ticket;
  if (!changed) return;
  require(session.canUndo());
  session.undo();
  require(session.marks().snapshot() == marks && session.ticket().values() == ticket);
}

void pickSome(PrintSession &session) {
  Availability availability(session);
  int options = 0;
  for (const PrinterOptionGroup &group : session.marks().printer().options()) {
    for (const PrinterOption &option : group.options) {
      if (++options > mostOptions) return;
      for (const PrinterChoice &choice : option.choices().mid(0, mostChoices)) {
        const auto wanted = session.marks().spelled(option.keyword(), choice.keyword);
        if (!wanted || !isText(wanted->option) || !isText(wanted->choice)) continue;
        availability.of(wanted->option, wanted->choice);
        pickAndUndo(session, *wanted);
      }
    }
  }
}

void runSession(std::shared_ptr<PrinterDescription> printer) {
  SessionSetup setup;
  setup.printer = std::move(printer);
  auto begun = PrintSession::begin(setup);
  require(begun.ok());
  PrintSession &session = *begun.value();
  session.openPanels(plugins());
  requireMarks(session);
  requireInspection(session);
  pickSome(session);
  session.panels().restore();
  requireInspection(session);
}

}  // namespace

/// What libcups keeps of files that it can't read is not ours to give back, and looking for it
/// takes longer than all the rest.
extern "C" const char *__asan_default_options() {
  return "detect_leaks=0";
}

extern "C" int LLVMFuzzerInitialize(int *count, char ***words) {
  qputenv("QT_QPA_PLATFORM", "minimal");
  keepLogQuiet();
  static QApplication application(*count, *words);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const QString path =
      fuzz::fileOf(QStringLiteral("printer.ppd"), reinterpret_cast<const char *>(data), size);
  auto printer = PrinterDescription::open(path);
  if (printer) {
    runSession(printer.take());
  } else {
    require(printer.failure().kind == FailureKind::Invalid);
    requireReason(printer.failure());
  }
  return 0;
}
