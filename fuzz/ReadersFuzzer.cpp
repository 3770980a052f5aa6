// SPDX-License-Identifier: Apache-2.0
// The readers of DNS replies. The first two bytes say where the cursor stands, the rest is the
// reply; it lies in a block of exactly its size, so that the address sanitizer sees one byte too
// far.

#include <cstdlib>
#include <memory>

#include "Common/RendezvousUtilities.h"
#include "fuzz/Quiet.h"

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  keepQuiet();
  if (size < 2) return 0;
  const std::size_t length = size - 2;
  const auto reply = std::make_unique<unsigned char[]>(length);
  std::copy_n(data + 2, length, reply.get());
  const unsigned char *place = reply.get() + ((data[0] << 8 | data[1]) % (length + 1));
  const auto count = static_cast<int>(length);

  const auto name = std::make_unique<char[]>(orvek::decodedNameSize);
  const unsigned char *cursor = place;
  const int withOutput = decode_name(&cursor, reply.get(), count, name.get());
  const unsigned char *end = cursor;
  cursor = place;
  require(decode_name(&cursor, reply.get(), count, nullptr) == withOutput && cursor == end);

  cursor = place;
  require(skip_question(&cursor, reply.get(), count) != 0 || cursor <= reply.get() + length);
  cursor = place;
  unsigned short port = 0;
  decode_srv(&cursor, reply.get(), count, name.get(), &port);
  cursor = place;
  unsigned int room = 64;
  const auto buffer = std::make_unique<unsigned char[]>(room);
  require(decode_txt(&cursor, reply.get(), count, buffer.get(), &room) != 0 || room <= 64);
  return 0;
}
