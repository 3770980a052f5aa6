// SPDX-License-Identifier: Apache-2.0
// Escapes for libcups' option parser.

#include "host/jobs/OptionText.h"

namespace orvek {
namespace {

const QString syntaxCharacters = QStringLiteral(" \t\n\r\v\f\\'\"{}");

QString escaped(const QString &value) {
  QString text;
  text.reserve(value.size());
  for (const QChar c : value) {
    if (syntaxCharacters.contains(c)) text += u'\\';
    text += c;
  }
  return text;
}

QString quotedWith(QChar quote, const QString &value) {
  return QString(quote) + value + QString(quote);
}

bool isCollection(const QString &value) {
  if (!value.startsWith(u'{') || !value.endsWith(u'}')) return false;
  int depth = 0;
  for (qsizetype i = 0; i < value.size(); ++i) {
    if (value[i] == u'{') ++depth;
    if (value[i] == u'}') --depth;
    if (depth == 0) return i == value.size() - 1;
  }
  return false;
}

QString guardedStart(const QString &value) {
  const bool startsAsSyntax =
      value.startsWith(u'\'') || value.startsWith(u'"') || value.startsWith(u'{');
  if (!startsAsSyntax || isCollection(value)) return value;
  if (!value.contains(u'"')) return quotedWith(u'"', value);
  if (!value.contains(u'\'')) return quotedWith(u'\'', value);
  return value;
}

}  // namespace

QString optionText(const QString &name, const QString &value) {
  return name + u'=' + escaped(value);
}

QString filterToolOptionText(const QString &name, const QString &value) {
  return optionText(name, guardedStart(value));
}

}  // namespace orvek
