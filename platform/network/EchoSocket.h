// SPDX-License-Identifier: Apache-2.0
// Unprivileged ICMP echo (icmp(7), "ICMP datagram sockets"), brought to the conventions that raw
// sockets follow: identifiers are the sender's own, and received datagrams begin with an IPv4
// header.
#pragma once

#include <netinet/in.h>
#include <sys/types.h>

#include <cstdint>
#include <span>

#include "platform/network/FileDescriptor.h"

namespace orvek {

/// The IPv4 header put in front of what an echo socket receives: no options.
inline constexpr int echoHeaderSize = 20;

/// An ICMP datagram socket for `protocol`, the number of "icmp". Invalid, with errno set, where the
/// system gives none: EACCES where net.ipv4.ping_group_range leaves the process's group out.
FileDescriptor openEchoSocket(int protocol);

/// Binds the socket to an echo identifier, given as it lies in the packet. The system replaces the
/// identifier of sent packets by the socket's, and would give it one of its own. False with errno
/// set: EADDRINUSE where another socket has this identifier.
bool bindEchoIdentifier(int socket, std::uint16_t identifier);

/// Receives one datagram as recvfrom(2) does, at most `buffer.size()` bytes. On an ICMP datagram
/// socket an IPv4 header (RFC 791) is put in front, since the system strips it there; on any other
/// socket the datagram stands as it came. `sender` may be null. Gives the length with the header,
/// or -1 with errno set.
ssize_t receiveWithIPHeader(int socket, std::span<unsigned char> buffer, sockaddr_in *sender);

}  // namespace orvek
