// SPDX-License-Identifier: Apache-2.0
// Texts from outside, shown letter for letter. The toolkit takes a text that looks like markup for
// markup, and markup can have files read: a PPD's wording must not.
#pragma once

#include <QLabel>
#include <QMessageBox>

namespace orvek {

/// A label that never takes its text for markup. Belongs to its parent; for the interface's thread.
/// To the toolkit it is a QLabel like any other.
class PlainLabel : public QLabel {
 public:
  explicit PlainLabel(QWidget *parent = nullptr) : QLabel(parent) { setTextFormat(Qt::PlainText); }
  explicit PlainLabel(const QString &text, QWidget *parent = nullptr) : PlainLabel(parent) {
    setText(text);
  }
};

/// A box with a message that is never taken for markup; its informative text is to be ours. For
/// the interface's thread.
class PlainMessageBox : public QMessageBox {
 public:
  PlainMessageBox(Icon icon, const QString &title, const QString &text, StandardButtons buttons,
                  QWidget *parent)
      : QMessageBox(icon, title, QString(), buttons, parent) {
    // Before the text: a box that has read markup once has read it.
    setTextFormat(Qt::PlainText);
    setText(text);
  }
};

/// Asks a question that can be answered with yes and no, and gives whether it was yes. Blocks
/// until then.
bool isConfirmed(QWidget *parent, const QString &title, const QString &question);

/// `text` as a tool tip that shows it letter for letter. Tool tips have no format to be set, so a
/// character that nobody sees is put where markup would begin.
QString plainToolTip(const QString &text);

}  // namespace orvek
