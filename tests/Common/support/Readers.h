// SPDX-License-Identifier: Apache-2.0
// Runs one reader on a reply that ends before an unreadable page, and keeps all it did.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <string>

#include "Common/RendezvousUtilities.h"
#include "tests/Common/support/GuardedBytes.h"
#include "tests/Common/support/Replies.h"

namespace orvek::test {

/// What a reader gave: its result, where the cursor is (from the reply's beginning), what it wrote.
struct Reading {
  int result = 0;
  std::ptrdiff_t cursor = 0;
  std::string text;
  unsigned short port = 0;
  unsigned int size = 0;
  std::string output;
};

inline constexpr unsigned short untouchedPort = 0xABCD;

/// `reader(cursor, start, length, reading)` on `reply`, from `offset` on.
template <class Reader>
Reading read(const Bytes &reply, std::ptrdiff_t offset, Reader reader) {
  GuardedBytes bytes(reply);
  Reading reading;
  reading.port = untouchedPort;
  const unsigned char *cursor = bytes.begin() + offset;
  testing::internal::CaptureStdout();
  reading.result = reader(&cursor, bytes.begin(), bytes.size(), &reading);
  reading.output = testing::internal::GetCapturedStdout();
  reading.cursor = cursor - bytes.begin();
  return reading;
}

inline Reading readName(const Bytes &reply, std::ptrdiff_t offset) {
  return read(reply, offset,
              [](const unsigned char **cursor, const unsigned char *start, int length, Reading *r) {
                std::array<char, orvek::decodedNameSize + 1> output{};
                output.fill('?');
                const int result = decode_name(cursor, start, length, output.data());
                EXPECT_EQ(output.back(), '?') << "the output was overrun";
                r->text = output.data();
                return result;
              });
}

inline Reading readNameWithoutOutput(const Bytes &reply, std::ptrdiff_t offset) {
  return read(reply, offset,
              [](const unsigned char **cursor, const unsigned char *start, int length, Reading *) {
                return decode_name(cursor, start, length, nullptr);
              });
}

inline Reading readQuestion(const Bytes &reply, std::ptrdiff_t offset) {
  return read(reply, offset,
              [](const unsigned char **cursor, const unsigned char *start, int length, Reading *) {
                return skip_question(cursor, start, length);
              });
}

inline Reading readService(const Bytes &reply, std::ptrdiff_t offset) {
  return read(reply, offset,
              [](const unsigned char **cursor, const unsigned char *start, int length, Reading *r) {
                std::array<char, orvek::decodedNameSize> target{"untouched"};
                const int result = decode_srv(cursor, start, length, target.data(), &r->port);
                r->text = target.data();
                return result;
              });
}

/// With a buffer of `room` bytes, which ends before an unreadable page as well.
inline Reading readText(const Bytes &reply, std::ptrdiff_t offset, unsigned int room) {
  GuardedBytes buffer(Bytes(room, '?'));
  return read(
      reply, offset,
      [&](const unsigned char **cursor, const unsigned char *start, int length, Reading *r) {
        r->size = room;
        const int result = decode_txt(cursor, start, length, buffer.begin(), &r->size);
        r->text.assign(buffer.begin(), buffer.begin() + room);
        return result;
      });
}

}  // namespace orvek::test
