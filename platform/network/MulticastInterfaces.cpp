// SPDX-License-Identifier: Apache-2.0
// The interfaces that multicast goes out on, from getifaddrs(3).

#include "platform/network/MulticastInterfaces.h"

#include <ifaddrs.h>
#include <net/if.h>

#include <memory>

namespace orvek {
namespace {

struct ListRelease {
  void operator()(ifaddrs *list) const { freeifaddrs(list); }
};

bool isSuitable(const ifaddrs &interface) {
  constexpr unsigned int examined = IFF_UP | IFF_MULTICAST | IFF_POINTOPOINT;
  constexpr unsigned int wanted = IFF_UP | IFF_MULTICAST;
  return interface.ifa_addr != nullptr && interface.ifa_addr->sa_family == AF_INET &&
         (interface.ifa_flags & examined) == wanted;
}

}  // namespace

std::optional<std::vector<in_addr>> multicastInterfaces() {
  ifaddrs *first = nullptr;
  if (getifaddrs(&first) != 0) return std::nullopt;
  const std::unique_ptr<ifaddrs, ListRelease> list(first);
  std::vector<in_addr> addresses;
  for (const ifaddrs *interface = first; interface != nullptr; interface = interface->ifa_next) {
    if (!isSuitable(*interface)) continue;
    addresses.push_back(reinterpret_cast<const sockaddr_in *>(interface->ifa_addr)->sin_addr);
  }
  return addresses;
}

}  // namespace orvek
