// SPDX-License-Identifier: Apache-2.0
// orvek-device mdns: asks for records and prints the answers.

#include <strings.h>

#include <array>
#include <charconv>
#include <cstring>
#include <optional>
#include <vector>

#include "Common/RendezvousUtilities.h"
#include "device/Answers.h"
#include "device/Commands.h"

namespace orvek::device {
namespace {

constexpr int classIN = 1;
constexpr int largestReply = 65535;

struct TypeName {
  const char *name;
  int number;
};

// RFC 1035 section 3.2.2, RFC 3596, RFC 2782, RFC 4034
constexpr std::array<TypeName, 12> typeNames{{{"A", 1},
                                              {"NS", 2},
                                              {"CNAME", 5},
                                              {"SOA", 6},
                                              {"PTR", 12},
                                              {"HINFO", 13},
                                              {"MX", 15},
                                              {"TXT", 16},
                                              {"AAAA", 28},
                                              {"SRV", 33},
                                              {"NSEC", 47},
                                              {"ANY", 255}}};

std::optional<int> typeNumber(const char *text) {
  for (const TypeName &type : typeNames) {
    if (strcasecmp(type.name, text) == 0) return type.number;
  }
  int number = 0;
  const char *end = text + std::strlen(text);
  const auto [stopped, error] = std::from_chars(text, end, number);
  const bool valid = error == std::errc() && stopped == end && number >= 1 && number <= 0xFFFF;
  return valid ? std::optional(number) : std::nullopt;
}

}  // namespace

}  // namespace orvek::device

int orvekDeviceCommand(int count, char **words, orvek::device::Output output) {
  using namespace orvek::device;
  if (count != 3) return misuse(words[0], "give a name and a type");
  const std::optional<int> type = typeNumber(words[2]);
  if (!type) return misuse(words[2], "this is no type: give SRV, TXT, A, PTR, ANY or a number");
  std::vector<unsigned char> reply(largestReply);
  const int length = mDNS_res_query(words[1], classIN, *type, reply.data(), largestReply);
  if (length < 0) return complain(Negative, words[1], "no answer");
  reply.resize(static_cast<std::size_t>(length));
  const std::vector<std::string> lines = describeAnswers(reply);
  for (const std::string &line : lines) std::fprintf(output.file, "%s\n", line.c_str());
  return lines.empty() ? complain(Negative, words[1], "the reply holds no answer") : Done;
}
