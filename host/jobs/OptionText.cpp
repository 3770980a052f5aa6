// SPDX-License-Identifier: Apache-2.0
// Escapes for libcups' option parser.

#include "host/jobs/OptionText.h"

#include "platform/printing/OptionValue.h"

namespace orvek {
namespace {

QString quotedWith(QChar quote, const QString &value) {
  return QString(quote) + value + QString(quote);
}

QString guardedStart(const QString &value) {
  const bool startsAsSyntax =
      value.startsWith(u'\'') || value.startsWith(u'"') || value.startsWith(u'{');
  if (!startsAsSyntax || isOptionCollection(value.toStdString())) return value;
  if (!value.contains(u'"')) return quotedWith(u'"', value);
  if (!value.contains(u'\'')) return quotedWith(u'\'', value);
  return value;
}

}  // namespace

QString optionText(const QString &name, const QString &value) {
  return name + u'=' + QString::fromStdString(escapedOptionValue(value.toStdString()));
}

QString filterToolOptionText(const QString &name, const QString &value) {
  return optionText(name, guardedStart(value));
}

}  // namespace orvek
