// SPDX-License-Identifier: Apache-2.0
// Host names as IPv4 addresses, through the system's own lookup.
#pragma once

#include <netinet/in.h>

#include <optional>

namespace orvek {

/// The first IPv4 address that the system knows for `host` (a name, or an address in any of the
/// dotted forms). Nothing for a null or unknown host. Blocks for as long as the system's resolver.
std::optional<in_addr> firstIPv4Address(const char *host);

}  // namespace orvek
