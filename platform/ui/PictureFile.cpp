// SPDX-License-Identifier: Apache-2.0
// Goes through the parts of a PNG: length, name, contents, checksum.

#include "platform/ui/PictureFile.h"

#include <zlib.h>

#include <QtEndian>
#include <string_view>

namespace orvek {
namespace {

constexpr std::string_view signature{"\x89PNG\r\n\x1a\n", 8};
constexpr qsizetype lengthBytes = 4;
constexpr qsizetype nameBytes = 4;
constexpr qsizetype checksumBytes = 4;

quint32 checksumOf(std::string_view bytes) {
  const auto *data = reinterpret_cast<const Bytef *>(bytes.data());
  return static_cast<quint32>(::crc32_z(0, data, bytes.size()));
}

quint32 numberAt(std::string_view bytes, qsizetype place) {
  return qFromBigEndian<quint32>(bytes.data() + place);
}

}  // namespace

bool isWholePng(const QByteArray &bytes) {
  std::string_view rest(bytes.constData(), static_cast<std::size_t>(bytes.size()));
  if (!rest.starts_with(signature)) return false;
  rest.remove_prefix(signature.size());
  constexpr std::size_t around = lengthBytes + nameBytes + checksumBytes;
  while (rest.size() >= around) {
    const std::size_t length = numberAt(rest, 0);
    if (length > rest.size() - around) return false;
    const std::string_view part = rest.substr(lengthBytes, nameBytes + length);
    const auto end = static_cast<qsizetype>(lengthBytes + part.size());
    if (checksumOf(part) != numberAt(rest, end)) return false;
    if (part.starts_with("IEND")) return true;
    rest.remove_prefix(around + length);
  }
  return false;
}

}  // namespace orvek
