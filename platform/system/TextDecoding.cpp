// SPDX-License-Identifier: Apache-2.0
// Strict decoding. Qt decodes the Unicode and Latin ones; iconv(3) knows Shift JIS on every system.

#include "platform/system/TextDecoding.h"

#include <iconv.h>

#include <QStringDecoder>
#include <algorithm>
#include <cstring>

namespace orvek {
namespace {

QString emptyText() {
  return QLatin1String("");
}

QString decodeUTF8(const QByteArray &bytes) {
  QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
  const QString text = decoder.decode(bytes);
  return decoder.hasError() ? QString() : text;
}

QString decodeASCII(const QByteArray &bytes) {
  const bool valid = std::all_of(bytes.begin(), bytes.end(),
                                 [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
  return valid ? QString::fromLatin1(bytes) : QString();
}

QString decodeShiftJIS(const QByteArray &bytes) {
  iconv_t converter = iconv_open("UTF-8", "SHIFT_JIS");
  if (converter == reinterpret_cast<iconv_t>(-1)) return {};
  QByteArray input = bytes;
  QByteArray output(bytes.size() * 4, '\0');  // no character of Shift JIS grows to more
  char *from = input.data();
  char *to = output.data();
  auto fromLeft = static_cast<std::size_t>(input.size());
  auto toLeft = static_cast<std::size_t>(output.size());
  const std::size_t outcome = iconv(converter, &from, &fromLeft, &to, &toLeft);
  iconv_close(converter);
  if (outcome == static_cast<std::size_t>(-1)) return {};
  return QString::fromUtf8(output.constData(), to - output.constData());
}

}  // namespace

QString decodeText(const QByteArray &bytes, TextEncoding encoding) {
  if (encoding == TextEncoding::None) return {};
  if (bytes.isEmpty()) return emptyText();
  switch (encoding) {
    case TextEncoding::UTF8:
      return decodeUTF8(bytes);
    case TextEncoding::ASCII:
      return decodeASCII(bytes);
    case TextEncoding::ShiftJIS:
      return decodeShiftJIS(bytes);
    default:
      return QString::fromLatin1(bytes);
  }
}

QString decodeField(const char *field, std::size_t capacity, TextEncoding encoding) {
  if (field == nullptr) return {};
  return decodeText(QByteArray(field, static_cast<qsizetype>(strnlen(field, capacity))), encoding);
}

}  // namespace orvek
