// SPDX-License-Identifier: Apache-2.0
// A combo box on the bus of screen readers, with the list as its only part while that is open.

#include "host/dialog/PrinterMenuSpeech.h"

#include <QAccessibleWidget>

#include "host/dialog/PrinterMenu.h"

namespace orvek {
namespace {

class Speech final : public QAccessibleWidget {
 public:
  explicit Speech(PrinterMenu &menu)
      : QAccessibleWidget(&menu, QAccessible::ComboBox), m_menu(menu) {}

  int childCount() const override { return m_menu.openList() == nullptr ? 0 : 1; }

  QAccessibleInterface *child(int index) const override {
    return index == 0 ? QAccessible::queryAccessibleInterface(m_menu.openList()) : nullptr;
  }

  int indexOfChild(const QAccessibleInterface *child) const override {
    return childCount() > 0 && child->object() == m_menu.openList() ? 0 : -1;
  }

  // What it is called its label says.
  QString text(QAccessible::Text kind) const override {
    const bool isChosen = kind == QAccessible::Name || kind == QAccessible::Value;
    return isChosen ? m_menu.currentText() : QAccessibleWidget::text(kind);
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = childCount() > 0;
    state.hasPopup = true;
    return state;
  }

  QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }

  void doAction(const QString &name) override {
    if (name == showMenuAction() || name == pressAction()) m_menu.showPopup();
  }

  QStringList keyBindingsForAction(const QString &) const override { return {}; }

 private:
  PrinterMenu &m_menu;
};

QAccessibleInterface *speechOf(const QString &, QObject *object) {
  auto *menu = qobject_cast<PrinterMenu *>(object);
  return menu == nullptr ? nullptr : new Speech(*menu);
}

}  // namespace

void teachSpeechOfPrinterMenus() {
  static const bool isTaught = [] {
    QAccessible::installFactory(speechOf);
    return true;
  }();
  static_cast<void>(isTaught);
}

}  // namespace orvek
