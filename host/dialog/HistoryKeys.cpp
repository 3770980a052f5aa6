// SPDX-License-Identifier: Apache-2.0
// Shortcuts, and a look at the keys that text fields would keep to themselves.

#include "host/dialog/HistoryKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>

namespace orvek {
namespace {

// Not every platform has a key for it by itself.
QList<QKeySequence> redoKeys() {
  QList<QKeySequence> keys = QKeySequence::keyBindings(QKeySequence::Redo);
  const QKeySequence usual(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
  if (!keys.contains(usual)) keys << usual;
  return keys;
}

// A number field's keys go to the text field inside it.
const QLineEdit *fieldOf(const QObject *watched) {
  const auto *field = qobject_cast<const QLineEdit *>(watched);
  return field != nullptr ? field : watched->findChild<QLineEdit *>();
}

}  // namespace

HistoryKeys::HistoryKeys(QWidget &window) : QObject(&window), m_window(window) {
  auto *undo = new QShortcut(&window);
  undo->setKeys(QKeySequence::keyBindings(QKeySequence::Undo));
  connect(undo, &QShortcut::activated, this, &HistoryKeys::undoAsked);
  auto *redo = new QShortcut(&window);
  redo->setKeys(redoKeys());
  connect(redo, &QShortcut::activated, this, &HistoryKeys::redoAsked);
  QApplication::instance()->installEventFilter(this);
}

bool HistoryKeys::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::KeyPress || watched != QApplication::focusWidget()) return false;
  if (!m_window.isAncestorOf(static_cast<QWidget *>(watched))) return false;
  const QLineEdit *field = fieldOf(watched);
  const bool hasOwn = field == nullptr || field->isUndoAvailable() || field->isRedoAvailable();
  return !hasOwn && takes(*static_cast<QKeyEvent *>(event));
}

bool HistoryKeys::takes(const QKeyEvent &event) {
  const QKeySequence key(event.keyCombination());
  if (event.matches(QKeySequence::Undo)) {
    Q_EMIT undoAsked();
  } else if (redoKeys().contains(key)) {
    Q_EMIT redoAsked();
  } else {
    return false;
  }
  return true;
}

}  // namespace orvek
