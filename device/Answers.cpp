// SPDX-License-Identifier: Apache-2.0
// The answers of a DNS reply as lines of text, read with the library's readers.

#include "device/Answers.h"

#include <arpa/inet.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

#include "Common/RendezvousUtilities.h"
#include "Common/ReplyCursor.h"
#include "platform/system/OneLine.h"

namespace orvek::device {
namespace {

using Reply = std::span<const unsigned char>;
using Name = std::array<char, decodedNameSize>;

constexpr int headerSize = 12;
constexpr int questionCountOffset = 4;
constexpr int answerCountOffset = 6;
constexpr int typeTXT = 16;
constexpr int typeSRV = 33;
constexpr int recordHeaderSize = 10;
constexpr int recordLengthOffset = 8;
constexpr int shortestServiceData = 7;
constexpr unsigned int largestData = 65535;

std::string escaped(char byte) {
  std::array<char, 5> escape{};
  std::snprintf(escape.data(), escape.size(), "\\%03u",
                static_cast<unsigned int>(static_cast<unsigned char>(byte)));
  return escape.data();
}

/// Without what a terminal would obey, and without bytes that are no text.
std::string shown(std::string_view text, bool quoted) {
  std::string result;
  while (!text.empty()) {
    const std::size_t length = characterLength(text);
    const std::string_view character = text.substr(0, std::max<std::size_t>(length, 1));
    if (length == 0 || isObeyed(character)) {
      for (const char byte : character) result += escaped(byte);
    } else {
      if (quoted && (character == "\"" || character == "\\")) result += '\\';
      result += character;
    }
    text.remove_prefix(character.size());
  }
  return result;
}

/// One answer: the place where it begins, its owner's name and its header, its data still unread.
struct Record {
  const unsigned char *begin;
  Name owner{};
  int type = 0;
  int dataLength = 0;
  ReplyCursor data;

  /// How much of the data the reply really holds.
  ReplyCursor::Offset there() const {
    return std::min<ReplyCursor::Offset>(dataLength, data.remaining());
  }
};

std::string describeService(const Record &record, Reply reply) {
  Name target{};
  unsigned short port = 0;
  const unsigned char *cursor = record.begin;
  decode_srv(&cursor, reply.data(), static_cast<int>(reply.size()), target.data(), &port);
  return " SRV " + std::to_string(record.data.number16(0)) + ' ' +
         std::to_string(record.data.number16(2)) + ' ' + std::to_string(ntohs(port)) + ' ' +
         shown(target.data(), false);
}

std::string describeText(const Record &record, Reply reply) {
  std::vector<unsigned char> data(largestData);
  unsigned int size = largestData;
  const unsigned char *cursor = record.begin;
  if (decode_txt(&cursor, reply.data(), static_cast<int>(reply.size()), data.data(), &size) != 0) {
    size = 0;
  }
  std::string line = " TXT";
  for (std::size_t at = 0; at < size;) {
    const std::size_t length = std::min<std::size_t>(data[at], size - at - 1);
    line += " \"" + shown({reinterpret_cast<const char *>(&data[at]) + 1, length}, true) + '"';
    at += length + 1;
  }
  return line;
}

std::string describeUnknown(const Record &record) {
  std::string line =
      " TYPE" + std::to_string(record.type) + " \\# " + std::to_string(record.there());
  if (record.there() > 0) line += ' ';
  ReplyCursor at = record.data;
  for (ReplyCursor::Offset left = record.there(); left > 0; --left, at.advance(1)) {
    std::array<char, 3> hex{};
    std::snprintf(hex.data(), hex.size(), "%02X", static_cast<unsigned int>(at.byte()));
    line += hex.data();
  }
  return line;
}

std::string describe(const Record &record, Reply reply) {
  const std::string owner = shown(record.owner.data(), false);
  if (record.type == typeSRV && record.there() >= shortestServiceData) {
    return owner + describeService(record, reply);
  }
  // Less than what the text reader asks for behind an owner's name: no string can be in there.
  if (record.type == typeTXT) return owner + describeText(record, reply);
  return owner + describeUnknown(record);
}

/// Reads the record at `*cursor` up to its data and moves the cursor behind it; false where it is
/// cut off before.
bool readRecord(const unsigned char **cursor, Reply reply, Record *record) {
  const auto length = static_cast<int>(reply.size());
  record->begin = *cursor;
  if (decode_name(cursor, reply.data(), length, record->owner.data()) != 0) return false;
  ReplyCursor at(reply.data(), length, *cursor);
  if (!at.holds(recordHeaderSize)) return false;
  record->type = at.number16(0);
  record->dataLength = at.number16(recordLengthOffset);
  at.advance(recordHeaderSize);
  record->data = at;
  at.advance(record->dataLength);
  *cursor = at.position();
  return true;
}

}  // namespace

std::vector<std::string> describeAnswers(std::span<const unsigned char> reply) {
  std::vector<std::string> lines;
  const auto length = static_cast<int>(reply.size());
  const ReplyCursor header(reply.data(), length, reply.data());
  if (!header.holds(headerSize)) return lines;
  const unsigned char *cursor = reply.data() + headerSize;
  for (int left = header.number16(questionCountOffset); left > 0; --left) {
    if (skip_question(&cursor, reply.data(), length) != 0) return lines;
  }
  for (int left = header.number16(answerCountOffset); left > 0; --left) {
    Record record{cursor, {}, 0, 0, header};
    if (!readRecord(&cursor, reply, &record)) break;
    lines.push_back(describe(record, reply));
  }
  return lines;
}

}  // namespace orvek::device
