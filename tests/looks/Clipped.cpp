// SPDX-License-Identifier: Apache-2.0
// Asks each control for the room that its text needs.

#include "tests/looks/Clipped.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QToolButton>

#include "host/dialog/ElidedLabel.h"

namespace orvek::test {
namespace {

// Fonts round the widths of letters.
constexpr int tolerance = 1;

QString nameOf(const QWidget &widget, const QString &text) {
  return QString::fromLatin1(widget.metaObject()->className()) + u' ' + widget.objectName() +
         QStringLiteral(" \"") + text + u'"';
}

QString textOf(const QWidget &widget) {
  if (const auto *label = qobject_cast<const QLabel *>(&widget)) return label->text();
  if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) return button->text();
  if (const auto *box = qobject_cast<const QComboBox *>(&widget)) return box->currentText();
  return {};
}

bool fits(const QLabel &label) {
  if (qobject_cast<const ElidedLabel *>(&label) != nullptr) return true;
  if (label.wordWrap()) {
    const QRect room = label.contentsRect();
    const QRect text = label.fontMetrics().boundingRect(QRect(0, 0, room.width(), QWIDGETSIZE_MAX),
                                                        Qt::TextWordWrap, label.text());
    return text.height() <= room.height() + tolerance && text.width() <= room.width() + tolerance;
  }
  return label.sizeHint().width() <= label.width() + tolerance;
}

bool fits(const QComboBox &box) {
  QStyleOptionComboBox option;
  option.initFrom(&box);
  option.editable = box.isEditable();
  const QRect field =
      box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box);
  return box.fontMetrics().horizontalAdvance(box.currentText()) <= field.width() + tolerance;
}

bool fits(const QTabBar &tabs) {
  for (int tab = 0; tab < tabs.count(); ++tab) {
    if (tabs.isTabVisible(tab) && !tabs.rect().contains(tabs.tabRect(tab))) return false;
  }
  return true;
}

bool fits(const QWidget &widget) {
  if (const auto *label = qobject_cast<const QLabel *>(&widget)) return fits(*label);
  if (const auto *box = qobject_cast<const QComboBox *>(&widget)) return fits(*box);
  if (const auto *tabs = qobject_cast<const QTabBar *>(&widget)) return fits(*tabs);
  if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) {
    return button->sizeHint().width() <= button->width() + tolerance;
  }
  return true;
}

// What scrolls may stand outside of what is seen.
bool isSeen(const QWidget &widget) {
  return widget.isVisible() && !widget.visibleRegion().isEmpty();
}

QRect placeOf(const QWidget &widget, const QWidget &window) {
  return {widget.mapTo(&window, QPoint()), widget.size()};
}

}  // namespace

QStringList clippedTexts(const QWidget &window) {
  QStringList found;
  QList<const QWidget *> speakers;
  for (const auto *widget : window.findChildren<QWidget *>()) {
    if (!isSeen(*widget)) continue;
    if (!fits(*widget)) found << nameOf(*widget, textOf(*widget)) + QStringLiteral(" is cut off");
    if (!textOf(*widget).isEmpty()) speakers << widget;
  }
  for (qsizetype i = 0; i < speakers.size(); ++i) {
    for (qsizetype j = i + 1; j < speakers.size(); ++j) {
      const QWidget &one = *speakers[i];
      const QWidget &other = *speakers[j];
      if (one.isAncestorOf(&other) || other.isAncestorOf(&one)) continue;
      const QRect common = placeOf(one, window) & placeOf(other, window);
      if (common.width() <= tolerance || common.height() <= tolerance) continue;
      found << nameOf(one, textOf(one)) + QStringLiteral(" and ") + nameOf(other, textOf(other)) +
                   QStringLiteral(" overlap");
    }
  }
  return found;
}

}  // namespace orvek::test
