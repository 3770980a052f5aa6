// SPDX-License-Identifier: Apache-2.0
// Host names as IPv4 addresses. The reentrant call, as other threads may look names up too.

#include "platform/network/HostAddress.h"

#include <netdb.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <vector>

namespace orvek {
namespace {

constexpr std::size_t firstBufferSize = 2048;
constexpr std::size_t largestBufferSize = 1 << 20;  // hosts with absurdly many addresses

}  // namespace

std::optional<in_addr> firstIPv4Address(const char *host) {
  if (host == nullptr) return std::nullopt;
  std::vector<char> buffer(firstBufferSize);
  hostent entry{};
  hostent *found = nullptr;
  int error = 0;
  int status = 0;
  while ((status = gethostbyname_r(host, &entry, buffer.data(), buffer.size(), &found, &error)) ==
             ERANGE &&
         buffer.size() < largestBufferSize) {
    buffer.resize(buffer.size() * 2);
  }
  if (status != 0 || found == nullptr || found->h_addrtype != AF_INET) return std::nullopt;
  if (found->h_addr_list[0] == nullptr) return std::nullopt;
  in_addr address{};
  std::memcpy(&address, found->h_addr_list[0],
              std::min(sizeof address, static_cast<std::size_t>(found->h_length)));
  return address;
}

}  // namespace orvek
