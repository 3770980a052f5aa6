// SPDX-License-Identifier: Apache-2.0
// What the toolkit has no format for.

#include "platform/ui/PlainText.h"

#include <QTextDocument>

namespace orvek {
namespace {

constexpr char16_t zeroWidthSpace = u'\u200b';

}  // namespace

bool isConfirmed(QWidget *parent, const QString &title, const QString &question) {
  PlainMessageBox box(QMessageBox::Question, title, question, QMessageBox::Yes | QMessageBox::No,
                      parent);
  return box.exec() == QMessageBox::Yes;
}

QString plainToolTip(const QString &text) {
  if (!Qt::mightBeRichText(text)) return text;
  QString plain;
  for (const QChar character : text) {
    plain += character;
    if (character == u'<' || character == u'&') plain += QChar(zeroWidthSpace);
  }
  return plain;
}

}  // namespace orvek
