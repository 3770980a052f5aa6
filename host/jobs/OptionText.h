// SPDX-License-Identifier: Apache-2.0
// Option values written so that libcups' option parser reads them back unchanged.
#pragma once

#include <QString>

namespace orvek {

/// "NAME=VALUE" for a parser that reads it once: white space, quotes, backslashes and braces in the
/// value are escaped. A value that is a whole collection ("{...}") reads back as that text.
QString optionText(const QString &name, const QString &value);

/// "NAME=VALUE" for the filter tool. It reads the text once and writes it again for the filters,
/// but leaves a quote or brace at the value's start bare, where the filters' parser would take it
/// for syntax; such a value is put into quotes of its own. What begins with one kind of quote and
/// also holds the other can't be written for both readers and loses its leading quotes.
QString filterToolOptionText(const QString &name, const QString &value);

}  // namespace orvek
