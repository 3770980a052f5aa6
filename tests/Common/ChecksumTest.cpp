// SPDX-License-Identifier: Apache-2.0
// The Internet checksum against a plain sum of 16-bit words.

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

#include "Common/SimplePing.h"
#include "tests/Common/support/GuardedBytes.h"

using namespace orvek::test;

namespace {

unsigned short plainChecksum(const unsigned char *bytes, std::size_t length) {
  std::uint64_t sum = 0;
  for (std::size_t i = 0; i + 1 < length; i += 2) {
    std::uint16_t word;
    std::memcpy(&word, bytes + i, 2);
    sum += word;
  }
  if (length % 2 != 0) sum += bytes[length - 1];
  while ((sum >> 16) != 0) sum = (sum & 0xFFFF) + (sum >> 16);
  return static_cast<unsigned short>(~sum);
}

std::vector<unsigned char> randomBytes(std::size_t count) {
  std::mt19937 random(20);
  std::vector<unsigned char> bytes(count);
  for (unsigned char &byte : bytes) byte = static_cast<unsigned char>(random());
  return bytes;
}

TEST(Checksum, EqualsThePlainSumAtEveryLengthAndAlignment) {
  const auto bytes = randomBytes(512);
  for (std::size_t at = 0; at < 16; ++at) {
    for (std::size_t length = 0; length <= 300; ++length) {
      ASSERT_EQ(in_cksum(bytes.data() + at, static_cast<int>(length)),
                plainChecksum(bytes.data() + at, length))
          << at << ' ' << length;
    }
  }
}

TEST(Checksum, EqualsThePlainSumBeyondWhat32BitsOfCarriesHold) {
  const std::vector<unsigned char> ones(1 << 20, 0xFF);
  EXPECT_EQ(in_cksum(ones.data(), 1 << 20), plainChecksum(ones.data(), ones.size()));
  const auto bytes = randomBytes((1 << 20) + 1);
  EXPECT_EQ(in_cksum(bytes.data(), (1 << 20) + 1), plainChecksum(bytes.data(), bytes.size()));
}

TEST(Checksum, ReadsNothingBehindTheBytes) {
  for (std::size_t length = 0; length < 70; ++length) {
    const auto bytes = randomBytes(length);
    GuardedBytes guarded(bytes);
    EXPECT_EQ(in_cksum(guarded.begin(), guarded.size()), plainChecksum(bytes.data(), length));
  }
}

TEST(Checksum, CountsAFinalOddByteAsTheLowOrderOne) {
  const unsigned char byte = 0x5A;
  EXPECT_EQ(in_cksum(&byte, 1), static_cast<unsigned short>(~0x5A));
}

TEST(Checksum, OfNothingIsAllOnes) {
  EXPECT_EQ(in_cksum("", 0), 0xFFFF);
  EXPECT_EQ(in_cksum(nullptr, 4), 0xFFFF);
  EXPECT_EQ(in_cksum("abc", -1), 0xFFFF);
}

/// The example of RFC 1071, section 3, whose sum is 0xDDF2.
TEST(Checksum, MatchesTheWorkedExampleOfItsRFC) {
  const unsigned char bytes[] = {0x00, 0x01, 0xF2, 0x03, 0xF4, 0xF5, 0xF6, 0xF7};
  const unsigned short checksum = in_cksum(bytes, sizeof bytes);
  unsigned char stored[2];
  std::memcpy(stored, &checksum, 2);
  EXPECT_EQ(stored[0], 0xFF & ~0xDD);
  EXPECT_EQ(stored[1], 0xFF & ~0xF2);
}

TEST(Checksum, OfAPacketThatHoldsItsChecksumIsZero) {
  auto packet = randomBytes(48);
  packet[2] = packet[3] = 0;
  const unsigned short checksum = in_cksum(packet.data(), 48);
  std::memcpy(&packet[2], &checksum, 2);
  EXPECT_EQ(in_cksum(packet.data(), 48), 0);
}

}  // namespace
