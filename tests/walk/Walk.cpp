// SPDX-License-Identifier: Apache-2.0
// Actions by chance, through what a window or a command line would call.

#include "tests/walk/Walk.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QLineEdit>
#include <array>

#include "host/cli/ActionRunner.h"
#include "host/cli/Inspection.h"
#include "host/presets/SessionPreset.h"
#include "host/printers/PrinterList.h"
#include "tests/walk/RandomPpd.h"

namespace orvek::test {
namespace {

constexpr std::array typed{"", "-", "7", "-7", "144", "99999999999", "abc", " 12 ", "+3", "1e3"};

QString valueFor(const QWidget *control, QRandomGenerator &random) {
  if (const auto *popUp = qobject_cast<const QComboBox *>(control)) {
    return u'#' + QString::number(random.bounded(-1, popUp->count() + 1));
  }
  if (qobject_cast<const QCheckBox *>(control) != nullptr) {
    return random.bounded(2) == 0 ? QStringLiteral("on") : QStringLiteral("off");
  }
  if (qobject_cast<const QLineEdit *>(control) != nullptr) {
    return QLatin1String(typed.at(random.bounded(quint32(typed.size()))));
  }
  return QString::number(random.bounded(-100, 300));
}

}  // namespace

Walk::Walk(quint32 seed) : m_random(seed) {
  m_plugins.push_back(
      std::make_shared<LoadedPlugin>(loadPlugin(QStringLiteral(ORVEK_BUNDLE_DIR)).take()));
  SessionSetup setup;
  setup.printer = anotherPrinter();
  begin(setup);
}

void Walk::begin(const SessionSetup &setup) {
  auto session = PrintSession::begin(setup);
  if (!session) {
    m_problem = session.failure().line();
    return;
  }
  // The old one's panels go before the printer that they borrow.
  m_session = session.take();
  m_session->openPanels(m_plugins);
}

std::shared_ptr<PrinterDescription> Walk::anotherPrinter() {
  QFile file(m_folder.filePath(QStringLiteral("printer.ppd")));
  if (file.open(QIODevice::WriteOnly)) file.write(randomPpd(m_random));
  file.close();
  auto printer = PrinterDescription::open(file.fileName());
  if (printer) return printer.take();
  m_problem = printer.failure().line();
  return nullptr;
}

Walk::State Walk::state() const {
  State state{m_session->marks().snapshot(), {}};
  const TicketValues ticket = m_session->ticket().values();
  for (auto entry = ticket.begin(); entry != ticket.end(); ++entry) {
    if (m_session->marks().printer().has(entry.key())) state.choices.insert(entry.key(), *entry);
  }
  return state;
}

void Walk::step() {
  constexpr int kinds = 1000;
  act(m_random.bounded(kinds));
  // What was put off until now belongs to the action.
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

void Walk::act(int kind) {
  if (kind < 350) return pick();
  if (kind < 700) return useControl();
  if (kind < 800) return setJob();
  if (kind < 870) return callPanels();
  if (kind < 950) return undo();
  if (kind < 980) return usePreset();
  if (kind < 998) return changePrinter();
  loseServer();
}

OptionChoice Walk::anyChoice() {
  QList<PrinterOption> options;
  for (const PrinterOptionGroup &group : m_session->marks().printer().options()) {
    options += group.options;
  }
  const PrinterOption option = options.at(m_random.bounded(int(options.size())));
  const QList<PrinterChoice> choices = option.choices();
  const int choice = m_random.bounded(int(choices.size()) + 1);
  return {option.keyword(),
          choice == choices.size() ? QStringLiteral("Missing") : choices[choice].keyword};
}

void Walk::pick() {
  const OptionChoice choice = anyChoice();
  m_action = QStringLiteral("pick %1 %2").arg(choice.option, choice.choice);
  const State before = state();
  const bool marked = m_session->pick(choice.option, choice.choice);
  if (marked && m_session->marks().marked(choice.option) != choice.choice) {
    m_problem = QStringLiteral("what was picked is not marked");
  }
  const bool changed = !(state().marks == before.marks) || state().choices != before.choices;
  if (!changed || m_random.bounded(4) != 0) return;
  m_action += QStringLiteral(", undone");
  m_session->undo();
  if (!(state().marks == before.marks) || state().choices != before.choices) {
    m_problem = QStringLiteral("the step back led elsewhere");
  }
}

void Walk::useControl() {
  m_action = QStringLiteral("no panel");
  const HostedPanel *hosted = m_session->panels().first();
  const PDEInspection *panel = hosted == nullptr ? nullptr : hosted->inspection();
  if (panel == nullptr) return;
  const auto controls = panel->inspectedControls();
  if (controls.isEmpty()) return;
  const auto &[name, control] = controls.at(m_random.bounded(int(controls.size())));
  m_action = name + u'=' + valueFor(control, m_random);
  const auto action = parseAction(m_action);
  // A user could not do all of them; that is said, and nothing done.
  if (action && !runAction(*m_session, action.value())) m_action += QStringLiteral(" (refused)");
}

void Walk::setJob() {
  m_action = QStringLiteral("job settings");
  JobSettings settings = m_session->job().settings();
  settings.copies = m_random.bounded(1, 5);
  m_session->job().setSettings(settings);
  m_session->job().setPagesPerSheet(m_random.bounded(3) * 2);
}

void Walk::callPanels() {
  constexpr std::array words{"restore", "save", "willShow", "reopen", "view"};
  m_action = QLatin1String(words.at(m_random.bounded(quint32(words.size()))));
  const Status done = runAction(*m_session, parseAction(m_action).value());
  if (!done) m_problem = done.failure().line();
}

void Walk::undo() {
  m_action = QStringLiteral("undo");
  m_session->undo();
}

void Walk::usePreset() {
  m_action = QStringLiteral("preset");
  const auto preset = presetFromJson(presetToJson(presetOf(*m_session, QStringLiteral("kept"))),
                                     QStringLiteral("kept"));
  if (!preset) {
    m_problem = preset.failure().line();
    return;
  }
  const int picks = m_random.bounded(4);
  for (int i = 0; i < picks; ++i) {
    const OptionChoice choice = anyChoice();
    m_session->pick(choice.option, choice.choice);
  }
  if (!applyPreset(*m_session, preset.value()).isEmpty()) {
    m_problem = QStringLiteral("a preset does not fit the printer that it was made with");
  }
}

void Walk::changePrinter() {
  m_action = QStringLiteral("another printer");
  const Preset entries = entriesOf(*m_session);
  SessionSetup setup;
  setup.printer = anotherPrinter();
  begin(setup);
  applyPreset(*m_session, entries);
}

void Walk::loseServer() {
  m_action = QStringLiteral("no print server");
  const State before = state();
  ServerAccess access;
  access.server = QStringLiteral("127.0.0.1:1");
  const auto printers = listPrinters(access);
  if (printers || printers.failure().line().isEmpty()) {
    m_problem = QStringLiteral("there are printers where there is no server");
  }
  if (!(state().marks == before.marks)) m_problem = QStringLiteral("the session heard of it");
}

QString Walk::problem() {
  for (const QString &found : {m_problem, problemOfMarks(), problemOfTicket(), problemOfJob()}) {
    if (!found.isEmpty()) return found;
  }
  return {};
}

QString Walk::problemOfMarks() const {
  const Marks &marks = m_session->marks();
  for (const OptionChoice &mark : marks.all()) {
    if (marks.spelled(mark.option, mark.choice) != mark) {
      return QStringLiteral("marked is %1 %2").arg(mark.option, mark.choice);
    }
  }
  const QList<OptionChoice> conflicts = marks.conflicts();
  return conflicts.isEmpty() ? QString()
                             : QStringLiteral("%1 conflicts").arg(conflicts.first().option);
}

QString Walk::problemOfTicket() const {
  const TicketValues ticket = m_session->ticket().values();
  for (auto entry = ticket.begin(); entry != ticket.end(); ++entry) {
    const int type = entry->metaType().id();
    if (type != QMetaType::QString && type != QMetaType::LongLong && type != QMetaType::Int) {
      return QStringLiteral("%1 in the ticket is neither text nor integer").arg(entry.key());
    }
    const QString marked = m_session->marks().marked(entry.key());
    if (m_session->marks().printer().has(entry.key()) && marked != entry->toString()) {
      return QStringLiteral("the ticket has %1 %2, marked is %3")
          .arg(entry.key(), entry->toString(), marked);
    }
  }
  return {};
}

QString Walk::problemOfJob() {
  const auto options = m_session->job().options();
  for (const OptionChoice &mark : m_session->marks().differingFromDefaults()) {
    if (options.value(mark.option) != mark.choice) {
      return QStringLiteral("the job lacks %1 %2").arg(mark.option, mark.choice);
    }
  }
  const QJsonObject state = inspect(*m_session);
  const QJsonDocument again = QJsonDocument::fromJson(QJsonDocument(state).toJson());
  return again.object() == state ? QString() : QStringLiteral("the state is no JSON object");
}

}  // namespace orvek::test
