// SPDX-License-Identifier: Apache-2.0
// Domain names in replies: labels, compression, and everything that can be wrong with them.

#include "tests/Common/support/Readers.h"

using namespace orvek::test;

namespace {

const std::string pastEnd = "\ndecode error, name extends past end of packet\n";
const std::string invalidOffset = "\ndecode error, compression offset invalid!\n";
const std::string loop = "\ndecode error, compression offset yields loop!\n";

int occurrences(const std::string &text, const std::string &part) {
  int count = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) {
    ++count;
  }
  return count;
}

/// `count` labels of `length` bytes each.
Bytes labels(int count, int length) {
  Bytes result;
  for (int i = 0; i < count; ++i) {
    result.push_back(static_cast<unsigned char>(length));
    result.insert(result.end(), static_cast<std::size_t>(length), 'a');
  }
  return result;
}

TEST(DecodeName, EndsEachLabelWithADot) {
  const Reading r = readName(name({"printer", "local"}), 0);
  EXPECT_EQ(r.result, 0);
  EXPECT_EQ(r.text, "printer.local.");
  EXPECT_EQ(r.cursor, 15);
  EXPECT_EQ(r.output, "");
}

TEST(DecodeName, GivesAnEmptyTextForTheRoot) {
  const Reading r = readName({0}, 0);
  EXPECT_EQ(r.result, 0);
  EXPECT_EQ(r.text, "");
  EXPECT_EQ(r.cursor, 1);
}

TEST(DecodeName, MovesTheCursorWithoutAnOutput) {
  const Reading r = readNameWithoutOutput(name({"printer", "local"}), 0);
  EXPECT_EQ(r.result, 0);
  EXPECT_EQ(r.cursor, 15);
}

TEST(DecodeName, FollowsAPointerAndStandsBehindTheFirstOne) {
  const Bytes reply = join(name({"local"}), Bytes{7}, raw("printer"), pointer(0), raw("more"));
  const Reading r = readName(reply, 7);
  EXPECT_EQ(r.result, 0);
  EXPECT_EQ(r.text, "printer.local.");
  EXPECT_EQ(r.cursor, 7 + 8 + 2);
}

TEST(DecodeName, StandsBehindTheFirstPointerAlsoWhereThatLeadsToAnother) {
  const Bytes reply = join(name({"local"}), Bytes{1, 'b'}, pointer(0), Bytes{1, 'a'}, pointer(7));
  const Reading r = readName(reply, 11);
  EXPECT_EQ(r.result, 0);
  EXPECT_EQ(r.text, "a.b.local.");
  EXPECT_EQ(r.cursor, 15);
}

TEST(DecodeName, RefusesAPointerToTheEndOfTheFirstPointer) {
  const Reading r = readName(join(pointer(2), Bytes{0}), 0);
  EXPECT_EQ(r.result, -2);
  EXPECT_EQ(r.output, invalidOffset);
  EXPECT_EQ(r.cursor, 2);
}

TEST(DecodeName, RefusesAPointerForwardOfTheFirstPointer) {
  const Reading r = readName(join(Bytes{1, 'a'}, pointer(9), name({"local"})), 0);
  EXPECT_EQ(r.result, -2);
  EXPECT_EQ(r.output, invalidOffset);
  EXPECT_EQ(r.text, "a.");
  EXPECT_EQ(r.cursor, 4);
}

TEST(DecodeName, ReportsAPointerToItselfOnEachPassAndThenGivesUp) {
  const Reading r = readName(pointer(0), 0);
  EXPECT_EQ(r.result, -2);
  EXPECT_EQ(occurrences(r.output, loop), 128);
  EXPECT_TRUE(r.output.ends_with(invalidOffset));
  EXPECT_EQ(occurrences(r.output, invalidOffset), 1);
  EXPECT_EQ(r.cursor, 2);
}

TEST(DecodeName, FollowsACycleOfTwoPointersWithoutALoopReport) {
  const Reading r = readName(join(pointer(2), pointer(0)), 2);
  EXPECT_EQ(r.result, -2);
  EXPECT_EQ(r.output, invalidOffset);
}

TEST(DecodeName, Follows128PointersInOneName) {
  Bytes reply{0, 0};
  for (int i = 0; i < 128; ++i) reply = join(reply, pointer(2 * i));
  const Reading r = readName(reply, 256);
  EXPECT_EQ(r.result, 0);
  const Reading oneMore = readName(join(reply, pointer(256)), 258);
  EXPECT_EQ(oneMore.result, -2);
  EXPECT_EQ(oneMore.output, invalidOffset);
}

TEST(DecodeName, TakesLengthsOf64To191ForLabels) {
  for (const int length : {64, 100, 191}) {
    const Reading r = readName(join(labels(1, length), Bytes{0}), 0);
    EXPECT_EQ(r.result, 0);
    EXPECT_EQ(r.text, std::string(static_cast<std::size_t>(length), 'a') + ".");
  }
}

TEST(DecodeName, EndsALabelsTextAtAZeroByte) {
  const Reading r = readName(join(Bytes{5, 'a', 'b', 0, 'c', 'd'}, name({"local"})), 0);
  EXPECT_EQ(r.result, 0);
  EXPECT_EQ(r.text, "ab.local.");
  EXPECT_EQ(r.cursor, 13);
}

TEST(DecodeName, RefusesALabelWhoseLastByteWouldLieAtTheEnd) {
  const Reading r = readName({3, 'a', 'b'}, 0);
  EXPECT_EQ(r.result, -3);
  EXPECT_EQ(r.output, pastEnd);
  EXPECT_EQ(r.text, "");
  EXPECT_EQ(r.cursor, 0);
}

TEST(DecodeName, RefusesANameWithoutItsFinalZeroByte) {
  const Reading r = readName({2, 'a', 'b'}, 0);
  EXPECT_EQ(r.result, -3);
  EXPECT_EQ(r.output, pastEnd);
  EXPECT_EQ(r.text, "ab.");
  EXPECT_EQ(r.cursor, 0);
}

TEST(DecodeName, RefusesHalfAPointer) {
  const Reading r = readName({1, 'a', 0xC0}, 0);
  EXPECT_EQ(r.result, -3);
  EXPECT_EQ(r.output, pastEnd);
}

TEST(DecodeName, RefusesACursorOutsideTheReply) {
  const Bytes reply = name({"local"});
  for (const int offset : {7, 8, -1}) {
    const Reading r = readName(reply, offset);
    EXPECT_EQ(r.result, -3) << offset;
    EXPECT_EQ(r.output, pastEnd) << offset;
    EXPECT_EQ(r.cursor, offset);
  }
}

TEST(DecodeName, FillsTheOutputToItsLastByte) {
  // 15 labels of 64 bytes with their dots, 47 bytes with a dot: 1023 and the terminating zero byte.
  const Reading fits = readName(join(labels(15, 64), labels(1, 47), Bytes{0}), 0);
  EXPECT_EQ(fits.result, 0);
  EXPECT_EQ(fits.text.size(), 1023U);
  EXPECT_EQ(fits.cursor, 15 * 65 + 48 + 1);
}

TEST(DecodeName, RefusesWhatTheOutputCantHold) {
  const Bytes reply = join(labels(15, 64), labels(1, 48), Bytes{0});
  const Reading r = readName(reply, 0);
  EXPECT_EQ(r.result, -3);
  EXPECT_EQ(r.output, pastEnd);
  EXPECT_EQ(r.text.size(), 15U * 65U);
  EXPECT_EQ(r.cursor, 0);
}

TEST(DecodeName, JudgesTheLengthAlikeWithoutAnOutput) {
  const Reading r = readNameWithoutOutput(join(labels(15, 64), labels(1, 48), Bytes{0}), 0);
  EXPECT_EQ(r.result, -3);
  EXPECT_EQ(r.output, pastEnd);
}

TEST(DecodeName, EndsALoopThatGrowsTheName) {
  const Reading r = readName(join(labels(1, 63), pointer(0)), 0);
  EXPECT_EQ(r.result, -3);
  EXPECT_EQ(r.text.size(), 15U * 64U);
}

TEST(DecodeName, RefusesAbsentBytes) {
  testing::internal::CaptureStdout();
  const unsigned char *nowhere = nullptr;
  const unsigned char byte = 0;
  const unsigned char *cursor = &byte;
  EXPECT_EQ(decode_name(nullptr, &byte, 1, nullptr), -3);
  EXPECT_EQ(decode_name(&nowhere, &byte, 1, nullptr), -3);
  EXPECT_EQ(decode_name(&cursor, nullptr, 1, nullptr), -3);
  EXPECT_EQ(decode_name(&cursor, &byte, 0, nullptr), -3);
  EXPECT_EQ(decode_name(&cursor, &byte, -5, nullptr), -3);
  testing::internal::GetCapturedStdout();
}

}  // namespace
