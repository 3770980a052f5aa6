// SPDX-License-Identifier: Apache-2.0
// The interfaces that multicast goes out on.
#pragma once

#include <netinet/in.h>

#include <optional>
#include <vector>

namespace orvek {

/// The IPv4 addresses of the interfaces that are up, multicast-capable and not point-to-point, in
/// the system's order; an interface with several addresses comes once per address. Nothing, with
/// errno set, where the system gives no list.
std::optional<std::vector<in_addr>> multicastInterfaces();

}  // namespace orvek
