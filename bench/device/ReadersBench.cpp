// SPDX-License-Identifier: Apache-2.0
// One reply with a question and an SRV answer, read by us, by c-ares and by the C library's parser.

#include <ares.h>
#include <arpa/nameser.h>
#include <netinet/in.h>
#include <resolv.h>

#include <array>
#include <cstdlib>

#include "Common/RendezvousUtilities.h"
#include "bench/Measure.h"
#include "bench/device/Benches.h"
#include "tests/Common/support/Replies.h"

using namespace orvek::test;

namespace bench {
namespace {

// Many short rounds, of which some fall into quiet moments also on a busy machine.
constexpr int works = 500;
constexpr int rounds = 2000;

void require(bool holds) {
  if (!holds) std::abort();
}

Bytes serviceReplyWithOneAnswer() {
  const Bytes data = serviceData(join(Bytes{7}, raw("printer"), pointer(headerSize + 16)));
  return join(header(1, 1), serviceQuestion(), pointer(headerSize),
              recordHeader(typeSRV, data.size()), data);
}

void readOwn(const Bytes &reply) {
  const auto length = static_cast<int>(reply.size());
  const unsigned char *cursor = reply.data() + headerSize;
  std::array<char, orvek::decodedNameSize> target;
  unsigned short port = 0;
  require(skip_question(&cursor, reply.data(), length) == 0);
  require(decode_srv(&cursor, reply.data(), length, target.data(), &port) == 0);
  keep(target);
}

void readWithAres(const Bytes &reply) {
  ares_srv_reply *services = nullptr;
  require(ares_parse_srv_reply(reply.data(), static_cast<int>(reply.size()), &services) ==
          ARES_SUCCESS);
  keep(services);
  ares_free_data(services);
}

void readWithLibrary(const Bytes &reply) {
  ns_msg message;
  ns_rr record;
  std::array<char, 1024> target;
  require(ns_initparse(reply.data(), static_cast<int>(reply.size()), &message) == 0);
  require(ns_parserr(&message, ns_s_an, 0, &record) == 0);
  require(dn_expand(ns_msg_base(message), ns_msg_end(message), ns_rr_rdata(record) + 6,
                    target.data(), target.size()) > 0);
  keep(target);
}

template <class Work>
auto repeat(Work work, const Bytes &reply) {
  return [work, &reply] {
    for (int i = 0; i < works; ++i) work(reply);
  };
}

}  // namespace

void readers() {
  const Bytes reply = serviceReplyWithOneAnswer();
  constexpr double goal = 0.25;
  line("read an SRV reply", "c-ares",
       compare(rounds, repeat(readOwn, reply), repeat(readWithAres, reply)), works, "ns", goal);
  line("read an SRV reply", "the C library's ns_parse",
       compare(rounds, repeat(readOwn, reply), repeat(readWithLibrary, reply)), works, "ns", 0);
}

}  // namespace bench
