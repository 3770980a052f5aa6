// SPDX-License-Identifier: Apache-2.0
// From bytes in a declared encoding to text, strictly: bytes that are not valid give no text.
#pragma once

#include <QByteArray>
#include <QString>

namespace orvek {

enum class TextEncoding { None = 0, UTF8, ASCII, ISOLatin1, ShiftJIS };

/// The text, or a null string where a byte is not valid in the encoding (always for None). No bytes
/// give an empty, not a null string.
QString decodeText(const QByteArray &bytes, TextEncoding encoding);

/// The same for a NUL-terminated text in a field of `capacity` bytes; null for a null pointer.
QString decodeField(const char *field, std::size_t capacity, TextEncoding encoding);

}  // namespace orvek
