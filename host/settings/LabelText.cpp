// SPDX-License-Identifier: Apache-2.0
// A text to translate, and what its translations may look like.

#include "host/settings/LabelText.h"

#include <QCoreApplication>

#include "host/settings/Mnemonics.h"

namespace orvek {
namespace {

/// The texts of this file, for translation.
struct Text {
  Q_DECLARE_TR_FUNCTIONS(orvek::LabelText)
};

bool isColon(QChar letter) {
  constexpr QChar wideColon(0xff1a);
  return letter == u':' || letter == wideColon;
}

}  // namespace

QString labelText(const QString &name) {
  return Text::tr("%1:", "a label before its field")
      .arg(withoutMnemonic(name.left(endOfWords(name))));
}

qsizetype endOfWords(const QString &text) {
  qsizetype end = text.size();
  if (end == 0 || !isColon(text[end - 1])) return end;
  --end;
  while (end > 0 && text[end - 1].isSpace()) --end;
  return end;
}

}  // namespace orvek
