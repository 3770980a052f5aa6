// SPDX-License-Identifier: Apache-2.0
// Adds to what is too narrow what stands on each other.

#include "tests/looks/Clipped.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>

#include "tests/host/dialog/TextFit.h"

namespace orvek::test {
namespace {

// Frames of controls may touch.
constexpr int tolerance = 1;

QString textOf(const QWidget &widget) {
  if (const auto *label = qobject_cast<const QLabel *>(&widget)) return label->text();
  if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) return button->text();
  if (const auto *box = qobject_cast<const QComboBox *>(&widget)) return box->currentText();
  return {};
}

// Of what scrolls only what is seen now.
QList<const QWidget *> speakersOf(const QWidget &window) {
  QList<const QWidget *> speakers;
  for (const auto *widget : window.findChildren<QWidget *>()) {
    const bool isSeen = widget->isVisible() && !widget->visibleRegion().isEmpty();
    if (isSeen && !textOf(*widget).isEmpty()) speakers << widget;
  }
  return speakers;
}

QRect placeOf(const QWidget &widget, const QWidget &window) {
  return {widget.mapTo(&window, QPoint()), widget.size()};
}

bool overlap(const QWidget &one, const QWidget &other, const QWidget &window) {
  if (one.isAncestorOf(&other) || other.isAncestorOf(&one)) return false;
  const QRect common = placeOf(one, window) & placeOf(other, window);
  return common.width() > tolerance && common.height() > tolerance;
}

}  // namespace

QStringList clippedTexts(const QWidget &window) {
  QStringList found;
  for (const QString &text : tooNarrow(&window)) found << text + QStringLiteral(" is cut off");
  const QList<const QWidget *> speakers = speakersOf(window);
  for (qsizetype i = 0; i < speakers.size(); ++i) {
    for (qsizetype j = i + 1; j < speakers.size(); ++j) {
      if (!overlap(*speakers[i], *speakers[j], window)) continue;
      found << QStringLiteral("\"%1\" and \"%2\" overlap")
                   .arg(textOf(*speakers[i]), textOf(*speakers[j]));
    }
  }
  return found;
}

}  // namespace orvek::test
