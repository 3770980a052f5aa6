// SPDX-License-Identifier: Apache-2.0
// Gathers what a session and its first panel show.

#include "host/cli/Inspection.h"

#include <QJsonArray>
#include <QWidget>

#include "host/cli/ControlInspection.h"
#include "platform/ui/Frames.h"

namespace orvek {
namespace {

QJsonValue textOrNull(const QString &text) {
  return text.isNull() ? QJsonValue() : QJsonValue(text);
}

QJsonArray sizeOf(const QWidget *view) {
  const QSizeF size = frameSize(view);
  return {size.width(), size.height()};
}

QJsonValue panelOf(const HostedPanel *hosted) {
  if (hosted == nullptr) return {};
  return QJsonObject{{QStringLiteral("name"), textOrNull(hosted->name())},
                     {QStringLiteral("kind"), textOrNull(hosted->kind())},
                     {QStringLiteral("keys"), QJsonArray::fromStringList(hosted->claimedOptions())},
                     {QStringLiteral("size"), sizeOf(hosted->view())}};
}

QJsonObject controlsOf(const PDEInspection *panel) {
  QJsonObject controls;
  if (panel == nullptr) return controls;
  for (const auto &[name, control] : panel->inspectedControls()) {
    controls.insert(name, inspectControl(control));
  }
  return controls;
}

QJsonObject selectionsOf(const PDEInspection *panel) {
  QJsonObject selections;
  if (panel == nullptr) return selections;
  for (const auto &[name, keyword] : panel->inspectedSelections()) {
    selections.insert(name, textOrNull(keyword));
  }
  return selections;
}

QJsonArray announcedIn(const PrintSession &session) {
  QJsonArray announced;
  for (const auto &[option, choice] : session.record().announced()) {
    announced.append(QJsonArray{option, textOrNull(choice)});
  }
  return announced;
}

QJsonObject marksIn(const PrintSession &session) {
  QJsonObject marks;
  for (const OptionChoice &mark : session.marks().all()) marks.insert(mark.option, mark.choice);
  return marks;
}

QJsonArray conflictsIn(const PrintSession &session) {
  QJsonArray conflicts;
  for (const OptionChoice &conflict : session.marks().conflicts()) {
    conflicts.append(QJsonArray{conflict.option, textOrNull(conflict.choice)});
  }
  return conflicts;
}

QJsonObject summaryIn(const PrintSession &session) {
  QJsonObject summary;
  for (const auto &[title, value] : session.panels().summary()) summary.insert(title, value);
  return summary;
}

}  // namespace

QJsonObject inspect(PrintSession &session) {
  const HostedPanel *hosted = session.panels().first();
  const PDEInspection *panel = hosted == nullptr ? nullptr : hosted->inspection();
  return {
      {QStringLiteral("panel"), panelOf(hosted)},
      {QStringLiteral("controls"), controlsOf(panel)},
      {QStringLiteral("selections"), selectionsOf(panel)},
      {QStringLiteral("modelNumber"),
       panel == nullptr ? QJsonValue() : textOrNull(panel->inspectedModelNumber())},
      {QStringLiteral("ticket"), ticketToJson(session.job().ticketToKeep())},
      {QStringLiteral("announced"), announcedIn(session)},
      {QStringLiteral("resized"), session.record().resizeCount()},
      {QStringLiteral("marks"), marksIn(session)},
      {QStringLiteral("conflicts"), conflictsIn(session)},
      {QStringLiteral("summary"), summaryIn(session)},
      {QStringLiteral("log"), QJsonArray::fromStringList(session.record().log())},
  };
}

}  // namespace orvek
