// SPDX-License-Identifier: Apache-2.0
// Finds the control an action means, refuses what a user couldn't do, and acts through the
// vocabulary of controls.

#include "host/cli/ActionRunner.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSlider>
#include <optional>

#include "platform/ui/Actions.h"
#include "platform/ui/Controls.h"
#include "platform/ui/PopUps.h"

namespace orvek {
namespace {

bool isHiddenWithin(const QWidget *control, const QWidget *panelView) {
  for (const QWidget *view = control; view != nullptr; view = view->parentWidget()) {
    if (isHidden(view)) return true;
    if (view == panelView) break;
  }
  return false;
}

Status checkReachable(const Action &action, const PanelControl &target) {
  if (target.control == nullptr) {
    return actionFailure(action, QStringLiteral("the panel has no control of this name"));
  }
  if (isHiddenWithin(target.control, target.panelView)) {
    return actionFailure(action, QStringLiteral("the control is hidden"));
  }
  if (!target.control->isEnabled()) {
    return actionFailure(action, QStringLiteral("the control is disabled"));
  }
  return {};
}

int findItem(const QComboBox *popUp, const QString &text) {
  for (int i = 0; i < numberOfItems(popUp); ++i) {
    if (itemIdentifier(popUp, i) == text) return i;
  }
  for (int i = 0; i < numberOfItems(popUp); ++i) {
    if (itemTitle(popUp, i) == text) return i;
  }
  return noItem;
}

Status pickItem(const Action &action, QComboBox *popUp) {
  int index = noItem;
  if (action.value.startsWith(QLatin1Char('#'))) {
    const std::optional<int> given = integerIn(action.value.mid(1));
    if (!given) {
      return actionFailure(action, QStringLiteral("\"#\" must be followed by an integer"));
    }
    index = *given;
  } else if (action.value.isEmpty()) {
    return actionFailure(action,
                         QStringLiteral("a menu takes an item's keyword or title, or #INDEX"));
  } else {
    index = findItem(popUp, action.value);
  }
  if (index < 0 || index >= numberOfItems(popUp)) {
    return actionFailure(action, QStringLiteral("the menu has no such item"));
  }
  if (!isItemEnabled(popUp, index)) {
    return actionFailure(action, QStringLiteral("the item is disabled"));
  }
  selectItemAtIndex(popUp, index);
  sendAction(popUp);
  return {};
}

Status clickBox(const Action &action, QCheckBox *box) {
  int wanted = stateOff;
  if (action.value == QLatin1String("on")) {
    wanted = stateOn;
  } else if (action.value == QLatin1String("mixed")) {
    wanted = stateMixed;
  } else if (action.value != QLatin1String("off")) {
    return actionFailure(action, QStringLiteral("a check box takes on, off or mixed"));
  }
  setState(box, wanted);
  sendAction(box);
  return {};
}

Status moveSlider(const Action &action, QSlider *slider) {
  const std::optional<int> value = integerIn(action.value);
  if (!value) return actionFailure(action, QStringLiteral("a slider takes an integer"));
  setIntValue(slider, *value);
  sendAction(slider);
  return {};
}

Status typeText(const Action &action, QLineEdit *field) {
  if (field->isReadOnly()) {
    return actionFailure(action, QStringLiteral("the text can't be edited"));
  }
  setStringValue(field, action.value);
  notifyTextDidChange(field);
  return {};
}

Status actOn(const Action &action, QWidget *control) {
  if (auto *popUp = qobject_cast<QComboBox *>(control)) return pickItem(action, popUp);
  if (auto *box = qobject_cast<QCheckBox *>(control)) return clickBox(action, box);
  if (auto *slider = qobject_cast<QSlider *>(control)) return moveSlider(action, slider);
  if (auto *field = qobject_cast<QLineEdit *>(control)) return typeText(action, field);
  return actionFailure(action, QStringLiteral("not a control that a user can change"));
}

Status useControl(PrintSession &session, const Action &action) {
  const PanelControl target = session.panels().findControl(action.control);
  if (Status reachable = checkReachable(action, target); !reachable) return reachable;
  const ActionScope scope(session);
  return actOn(action, target.control);
}

void callPanels(PrintSession &session, Action::Kind call) {
  const ActionScope scope(session);
  PanelSet &panels = session.panels();
  if (call == Action::Kind::View) panels.loadViews();
  if (call == Action::Kind::Restore) panels.restore();
  if (call == Action::Kind::Save) panels.save();
  if (call == Action::Kind::WillShow) panels.willShow();
  if (call == Action::Kind::Reopen) panels.reopen();
}

}  // namespace

Status runAction(PrintSession &session, const Action &action) {
  switch (action.kind) {
    case Action::Kind::Control:
      return useControl(session, action);
    case Action::Kind::PagesPerSheet:
      session.job().setPagesPerSheet(action.number);
      return {};
    default:
      callPanels(session, action.kind);
      return {};
  }
}

}  // namespace orvek
