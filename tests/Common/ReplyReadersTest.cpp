// SPDX-License-Identifier: Apache-2.0
// Questions, SRV and TXT records, whole and broken.

#include <arpa/inet.h>

#include "tests/Common/support/Readers.h"

using namespace orvek::test;

namespace {

const std::string ranOff = "decode error, ran off the buffer\n";
const std::string shortRecord = "decode error, packet too short for type, class, ttl, and length\n";
const std::string shortData = "decode error, packet too short for reported rr length\n";
const std::string pastEnd = "\ndecode error, name extends past end of packet\n";

constexpr std::ptrdiff_t questionSize = 23 + 4;
constexpr std::ptrdiff_t firstAnswer = headerSize + questionSize;

Bytes serviceRecord(const Bytes &target) {
  const Bytes data = serviceData(target);
  return join(name({"a"}), recordHeader(typeSRV, data.size()), data);
}

TEST(SkipQuestion, MovesPastNameTypeAndClass) {
  const Reading r = readQuestion(serviceReply(), headerSize);
  EXPECT_EQ(r.result, 0);
  EXPECT_EQ(r.cursor, firstAnswer);
  EXPECT_EQ(r.output, "");
}

TEST(SkipQuestion, AcceptsAQuestionThatEndsWithTheReply) {
  const Bytes question = serviceQuestion();
  EXPECT_EQ(readQuestion(question, 0).result, 0);
}

TEST(SkipQuestion, RefusesACursorAtTheEndOfTheReply) {
  const Reading r = readQuestion({0, 0}, 2);
  EXPECT_EQ(r.result, -1);
  EXPECT_EQ(r.output, ranOff);
  EXPECT_EQ(r.cursor, 2);
}

TEST(SkipQuestion, RefusesACursorBeforeTheReply) {
  const Reading r = readQuestion({0, 0}, -1);
  EXPECT_EQ(r.result, -1);
  EXPECT_EQ(r.output, ranOff);
}

TEST(SkipQuestion, RefusesANameThatDoesNotDecode) {
  EXPECT_EQ(readQuestion({9, 'a'}, 0).result, -2);
}

TEST(SkipQuestion, RefusesCutOffTypeAndClassWithAMessageWithoutLineEnd) {
  const Reading r = readQuestion({0, 0, 1, 0}, 0);
  EXPECT_EQ(r.result, -4);
  EXPECT_EQ(r.output, "decode error, packet too short for type and class");
  EXPECT_EQ(r.cursor, 1);
}

TEST(DecodeService, GivesTargetAndPortAndMovesPastTheRecord) {
  const Reading r = readService(serviceReply(), firstAnswer);
  EXPECT_EQ(r.result, 0);
  EXPECT_EQ(r.text, "printer.local.");
  EXPECT_EQ(r.port, htons(631));
  EXPECT_EQ(r.cursor, firstAnswer + 2 + 10 + 6 + 10);
  EXPECT_EQ(r.output, "");
}

TEST(DecodeService, LeavesTheOutputsOfARecordOfAnotherType) {
  const Bytes data = raw("0123456789");
  const Reading r = readService(join(name({"a"}), recordHeader(typePTR, data.size()), data), 0);
  EXPECT_EQ(r.result, 0);
  EXPECT_EQ(r.text, "untouched");
  EXPECT_EQ(r.port, untouchedPort);
  EXPECT_EQ(r.cursor, 3 + 10 + 10);
}

TEST(DecodeService, TakesNeitherTargetNorPort) {
  const Bytes reply = serviceReply();
  const unsigned char *cursor = reply.data() + firstAnswer;
  EXPECT_EQ(decode_srv(&cursor, reply.data(), static_cast<int>(reply.size()), nullptr, nullptr), 0);
}

TEST(DecodeService, RefusesACursorOutsideTheReply) {
  const Reading r = readService({0}, 1);
  EXPECT_EQ(r.result, -1);
  EXPECT_EQ(r.output, ranOff);
}

TEST(DecodeService, RefusesAnOwnerNameThatDoesNotDecode) {
  EXPECT_EQ(readService({5, 'a'}, 0).result, -2);
}

TEST(DecodeService, AsksForThirteenBytesBehindTheOwnerName) {
  const Bytes record = join(Bytes{0}, recordHeader(typePTR, 0), Bytes{0, 0});
  const Reading twelve = readService(record, 0);
  EXPECT_EQ(twelve.result, -3);
  EXPECT_EQ(twelve.output, shortRecord);
  EXPECT_EQ(twelve.cursor, 1);
  EXPECT_EQ(readService(join(record, Bytes{0}), 0).result, 0);
}

TEST(DecodeService, WarnsOfARecordLongerThanTheReplyAndEndsBehindIt) {
  Bytes reply = join(name({"a"}), recordHeader(typePTR, 100), raw("abc"));
  const Reading r = readService(reply, 0);
  EXPECT_EQ(r.result, 0);
  EXPECT_EQ(r.output, shortData);
  EXPECT_EQ(r.cursor, 3 + 10 + 100);
}

TEST(DecodeService, ReadsTheTargetEvenWhereTheRecordClaimsToBeShorter) {
  const Bytes data = serviceData(name({"b"}));
  const Reading r = readService(join(name({"a"}), recordHeader(typeSRV, 3), data), 0);
  EXPECT_EQ(r.result, 0);
  EXPECT_EQ(r.text, "b.");
  EXPECT_EQ(r.cursor, 3 + 10 + 3);
}

TEST(DecodeService, LeavesThePortWhereTheReplyEndsInsideIt) {
  Bytes reply = serviceRecord(name({"b"}));
  reply.resize(3 + 10 + 5);
  const Reading r = readService(reply, 0);
  EXPECT_EQ(r.result, 0);
  EXPECT_EQ(r.port, untouchedPort);
  EXPECT_EQ(r.text, "");
  EXPECT_EQ(r.output, shortData + pastEnd);
}

TEST(DecodeService, IgnoresHowDecodingTheTargetWent) {
  const Reading r = readService(serviceRecord({1, 'b', 0xC3, 0xFF}), 0);
  EXPECT_EQ(r.result, 0);
  EXPECT_EQ(r.text, "b.");
  EXPECT_EQ(r.cursor, 3 + 10 + 10);
}

TEST(DecodeText, CopiesTheDataRawAndSaysHowMuch) {
  const Bytes text =
      raw("\x03"
          "a=1\x02"
          "bc");
  const Reading r = readText(join(name({"a"}), recordHeader(typeTXT, 7), text), 0, 20);
  EXPECT_EQ(r.result, 0);
  EXPECT_EQ(r.size, 7U);
  EXPECT_EQ(r.text.substr(0, 8), std::string(text.begin(), text.end()) + "?");
  EXPECT_EQ(r.cursor, 3 + 10 + 7);
}

TEST(DecodeText, FillsABufferOfExactlyItsSize) {
  EXPECT_EQ(readText(join(name({"a"}), recordHeader(typeTXT, 4), raw("\x03xyz")), 0, 4).size, 4U);
}

TEST(DecodeText, CopiesNothingIntoABufferThatIsTooSmall) {
  const Reading r = readText(join(name({"a"}), recordHeader(typeTXT, 4), raw("\x03xyz")), 0, 3);
  EXPECT_EQ(r.result, -6);
  EXPECT_EQ(r.text, "???");
  EXPECT_EQ(r.size, 3U);
  EXPECT_EQ(r.cursor, 3 + 10);
}

TEST(DecodeText, CopiesWhatTheReplyReallyHolds) {
  const Reading r = readText(join(name({"a"}), recordHeader(typeTXT, 9), raw("\x08xyz")), 0, 9);
  EXPECT_EQ(r.result, 0);
  EXPECT_EQ(r.size, 4U);
  EXPECT_EQ(r.output, shortData);
  EXPECT_EQ(r.cursor, 3 + 10 + 9);
}

TEST(DecodeText, LeavesTheBufferForARecordOfAnotherType) {
  const Reading r = readText(join(name({"a"}), recordHeader(typePTR, 4), raw("\x03xyz")), 0, 2);
  EXPECT_EQ(r.result, 0);
  EXPECT_EQ(r.size, 2U);
  EXPECT_EQ(r.text, "??");
}

TEST(DecodeText, AsksForTheBufferFirstThenForTheSize) {
  const unsigned char *cursor = nullptr;
  unsigned char buffer = 0;
  unsigned int size = 0;
  EXPECT_EQ(decode_txt(&cursor, nullptr, 0, nullptr, nullptr), -1);
  EXPECT_EQ(decode_txt(&cursor, nullptr, 0, &buffer, nullptr), -2);
  testing::internal::CaptureStdout();
  EXPECT_EQ(decode_txt(&cursor, nullptr, 0, &buffer, &size), -3);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), ranOff);
}

TEST(DecodeText, RefusesBrokenOwnersAndShortHeaders) {
  EXPECT_EQ(readText({5, 'a'}, 0, 9).result, -4);
  const Reading r = readText(join(Bytes{0}, recordHeader(typeTXT, 2), raw("\x01z")), 0, 9);
  EXPECT_EQ(r.result, -5);
  EXPECT_EQ(r.output, shortRecord);
}

/// Every reader on every truncation of a real reply, from every offset: the unreadable page behind
/// the bytes is the judge.
TEST(ReplyReaders, StayWithinEveryTruncationOfARealReply) {
  const Bytes whole = serviceReply();
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    const Bytes reply(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    for (std::ptrdiff_t offset = -1; offset <= static_cast<std::ptrdiff_t>(size) + 1; ++offset) {
      const auto least = static_cast<std::ptrdiff_t>(size);
      for (const Reading &r : {readName(reply, offset), readQuestion(reply, offset),
                               readService(reply, offset), readText(reply, offset, 40)}) {
        EXPECT_LE(r.result, 0);
        EXPECT_GE(r.cursor, std::min(offset, least));
      }
    }
  }
}

/// A reply cut off anywhere never reads as whole.
TEST(ReplyReaders, TellACutOffRecordFromAWholeOne) {
  const Bytes whole = serviceReply();
  for (std::ptrdiff_t size = firstAnswer; size < firstAnswer + 15; ++size) {
    const Reading r = readService(Bytes(whole.begin(), whole.begin() + size), firstAnswer);
    EXPECT_LT(r.result, 0) << size;
  }
}

}  // namespace
