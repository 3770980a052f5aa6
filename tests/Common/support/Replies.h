// SPDX-License-Identifier: Apache-2.0
// Replies as printers send them, and the pieces to build others from.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace orvek::test {

using Bytes = std::vector<unsigned char>;

/// `text` as it stands, without its terminating zero byte.
inline Bytes raw(std::string_view text) {
  return {text.begin(), text.end()};
}

inline Bytes number16(int value) {
  return {static_cast<unsigned char>(value >> 8), static_cast<unsigned char>(value)};
}

template <class... More>
Bytes join(Bytes first, const More &...more) {
  (first.insert(first.end(), more.begin(), more.end()), ...);
  return first;
}

/// A header with these counts, as an authoritative answer.
inline Bytes header(int questions, int answers) {
  return join(Bytes{0x12, 0x34, 0x84, 0x00}, number16(questions), number16(answers), number16(0),
              number16(0));
}

/// A name from its labels, uncompressed.
inline Bytes name(std::initializer_list<std::string_view> labels) {
  Bytes result;
  for (const std::string_view label : labels) {
    result.push_back(static_cast<unsigned char>(label.size()));
    result.insert(result.end(), label.begin(), label.end());
  }
  result.push_back(0);
  return result;
}

inline Bytes pointer(int offset) {
  return number16(0xC000 | offset);
}

/// Type, class IN, time to live and the length of the data.
inline Bytes recordHeader(int type, std::size_t length) {
  return join(number16(type), number16(1), Bytes{0, 0, 0, 0x78},
              number16(static_cast<int>(length)));
}

constexpr int typePTR = 12;
constexpr int typeTXT = 16;
constexpr int typeSRV = 33;
constexpr int headerSize = 12;

/// A question for "Orvek._ipp._tcp.local", type SRV. "_tcp" is 11 bytes behind its beginning,
/// "local" 16.
inline Bytes serviceQuestion() {
  return join(name({"Orvek", "_ipp", "_tcp", "local"}), number16(typeSRV), number16(1));
}

/// What an SRV record holds behind its header: priority 1, weight 2, port 631 and the target.
inline Bytes serviceData(const Bytes &target) {
  return join(number16(1), number16(2), number16(631), target);
}

/// A responder's whole reply: one question, its SRV answer with a compressed target
/// "printer.local.", and a TXT record.
inline Bytes serviceReply() {
  const Bytes local = pointer(headerSize + 16);
  const Bytes target = join(Bytes{7}, raw("printer"), local);
  const Bytes data = serviceData(target);
  const Bytes text = raw("\x0Drp=printers/a\x09txtvers=1");
  return join(header(1, 2), serviceQuestion(), pointer(headerSize),
              recordHeader(typeSRV, data.size()), data, pointer(headerSize),
              recordHeader(typeTXT, text.size()), text);
}

}  // namespace orvek::test
