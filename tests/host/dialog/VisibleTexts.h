// SPDX-License-Identifier: Apache-2.0
// Every text that a window shows or has spoken.
#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTabWidget>

#include "host/dialog/ElidedLabel.h"

namespace orvek::test {

/// A text and where it stands. Plain data.
struct VisibleText {
  QString text;
  QString place;
};

inline QStringList modelTexts(const QAbstractItemModel &model, const QModelIndex &parent = {}) {
  QStringList texts;
  for (int row = 0; row < model.rowCount(parent); ++row) {
    for (int column = 0; column < model.columnCount(parent); ++column) {
      for (const int role : {int(Qt::DisplayRole), int(Qt::ToolTipRole)}) {
        texts << model.index(row, column, parent).data(role).toString();
      }
    }
    texts << modelTexts(model, model.index(row, 0, parent));
  }
  return texts;
}

inline QStringList ownTexts(const QWidget &widget) {
  QStringList texts{widget.toolTip(), widget.accessibleName(), widget.accessibleDescription()};
  if (widget.isWindow()) texts << widget.windowTitle();
  if (const auto *elided = qobject_cast<const ElidedLabel *>(&widget)) {
    texts << elided->wholeText();
  } else if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
    texts << label->text();
  }
  if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) texts << button->text();
  if (const auto *group = qobject_cast<const QGroupBox *>(&widget)) texts << group->title();
  if (const auto *line = qobject_cast<const QLineEdit *>(&widget)) texts << line->placeholderText();
  if (const auto *number = qobject_cast<const QSpinBox *>(&widget)) {
    texts << number->prefix() << number->suffix() << number->specialValueText();
  }
  if (const auto *tabs = qobject_cast<const QTabWidget *>(&widget)) {
    for (int tab = 0; tab < tabs->count(); ++tab) {
      texts << tabs->tabText(tab) << tabs->tabToolTip(tab);
    }
  }
  if (const auto *view = qobject_cast<const QAbstractItemView *>(&widget); view && view->model()) {
    texts << modelTexts(*view->model());
    for (int column = 0; column < view->model()->columnCount(); ++column) {
      texts << view->model()->headerData(column, Qt::Horizontal).toString();
    }
  }
  if (const auto *box = qobject_cast<const QComboBox *>(&widget)) {
    texts << modelTexts(*box->model());
  }
  return texts;
}

/// Of the window and all its parts but those below a widget of the name given; each once.
inline QList<VisibleText> visibleTexts(const QWidget &window, const QString &leftOut = {}) {
  QList<VisibleText> all;
  QStringList known;
  QList<const QWidget *> widgets{&window};
  for (const auto *widget : window.findChildren<QWidget *>()) widgets << widget;
  for (const QWidget *widget : widgets) {
    const auto *excluded = leftOut.isEmpty() ? nullptr : window.findChild<QWidget *>(leftOut);
    if (excluded && (widget == excluded || excluded->isAncestorOf(widget))) continue;
    for (const QString &text : ownTexts(*widget)) {
      if (text.isEmpty() || known.contains(text)) continue;
      known << text;
      all.append({text, QString::fromLatin1(widget->metaObject()->className()) + u' ' +
                            widget->objectName()});
    }
  }
  return all;
}

}  // namespace orvek::test
