// SPDX-License-Identifier: Apache-2.0
// Measures texts with the fonts they are painted in.

#include "tests/host/dialog/TextFit.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>
#include <QTabBar>

namespace orvek::test {
namespace {

QSize textSize(const QWidget *widget, const QString &text) {
  return widget->fontMetrics().size(Qt::TextShowMnemonic, text);
}

bool fitsLabel(const QLabel *label) {
  const QRect room = label->contentsRect();
  if (!label->wordWrap()) return textSize(label, label->text()).width() <= room.width();
  const QRect wrapped =
      label->fontMetrics().boundingRect(QRect(0, 0, room.width(), QWIDGETSIZE_MAX),
                                        Qt::TextWordWrap | Qt::TextShowMnemonic, label->text());
  return wrapped.width() <= room.width() && wrapped.height() <= room.height();
}

bool fitsButton(const QAbstractButton *button) {
  return button->text().isEmpty() || button->sizeHint().width() <= button->width();
}

bool fitsPopUp(const QComboBox *box) {
  QStyleOptionComboBox option;
  option.initFrom(box);
  const QRect field =
      box->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box);
  return textSize(box, box->currentText()).width() <= field.width();
}

bool fitsTabs(const QTabBar *tabs) {
  for (int tab = 0; tab < tabs->count(); ++tab) {
    if (textSize(tabs, tabs->tabText(tab)).width() > tabs->tabRect(tab).width()) return false;
  }
  return true;
}

bool fitsField(const QLineEdit *field) {
  // A spin box has its field as wide as its longest number.
  if (field->parentWidget()->inherits("QAbstractSpinBox")) return true;
  const QString text = field->text().isEmpty() ? field->placeholderText() : field->text();
  return textSize(field, text).width() <= field->contentsRect().width();
}

bool fits(const QWidget *widget) {
  if (const auto *label = qobject_cast<const QLabel *>(widget)) return fitsLabel(label);
  if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) return fitsButton(button);
  if (const auto *box = qobject_cast<const QComboBox *>(widget)) return fitsPopUp(box);
  if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) return fitsTabs(tabs);
  if (const auto *field = qobject_cast<const QLineEdit *>(widget)) return fitsField(field);
  if (const auto *group = qobject_cast<const QGroupBox *>(widget)) {
    return textSize(group, group->title()).width() <= group->width();
  }
  return true;
}

QString described(const QWidget *widget) {
  const QVariant text = widget->property("text");
  return QStringLiteral("%1 %2 \"%3\" %4x%5")
      .arg(QLatin1String(widget->metaObject()->className()), widget->objectName(),
           text.isValid() ? text.toString() : widget->property("currentText").toString())
      .arg(widget->width())
      .arg(widget->height());
}

}  // namespace

QStringList tooNarrow(const QWidget *root) {
  QStringList found;
  for (const QWidget *widget : root->findChildren<QWidget *>()) {
    if (widget->isVisibleTo(root) && !fits(widget)) found << described(widget);
  }
  return found;
}

}  // namespace orvek::test
