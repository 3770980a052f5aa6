// SPDX-License-Identifier: Apache-2.0
// ICMP echo sockets: identifier and IPv4 header.

#include "platform/network/EchoSocket.h"

#include <netinet/ip.h>
#include <sys/socket.h>

#include <algorithm>
#include <cstring>

namespace orvek {
namespace {

constexpr std::uint8_t versionAndHeaderWords = 0x45;  // IPv4, five 32-bit words

int socketOption(int socket, int name) {
  int value = -1;
  socklen_t size = sizeof value;
  return getsockopt(socket, SOL_SOCKET, name, &value, &size) == 0 ? value : -1;
}

/// Only these sockets strip the header.
bool lacksHeader(int socket) {
  return socketOption(socket, SO_PROTOCOL) == IPPROTO_ICMP &&
         socketOption(socket, SO_TYPE) == SOCK_DGRAM;
}

void writeHeader(std::span<unsigned char> buffer, std::size_t length, const sockaddr_in &sender) {
  iphdr header{};
  auto *bytes = reinterpret_cast<unsigned char *>(&header);
  header.protocol = IPPROTO_ICMP;
  header.tot_len = htons(static_cast<std::uint16_t>(length));
  header.saddr = sender.sin_addr.s_addr;
  bytes[0] = versionAndHeaderWords;
  std::copy_n(bytes, echoHeaderSize, buffer.begin());
}

}  // namespace

static_assert(sizeof(iphdr) == echoHeaderSize);

FileDescriptor openEchoSocket(int protocol) {
  return FileDescriptor(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, protocol));
}

bool bindEchoIdentifier(int socket, std::uint16_t identifier) {
  // These sockets begin with address reuse on, and two of them would then share an identifier.
  const int off = 0;
  if (setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &off, sizeof off) != 0) return false;
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = identifier;  // the identifier takes the port's place, in the packet's order
  return bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
}

ssize_t receiveWithIPHeader(int socket, std::span<unsigned char> buffer, sockaddr_in *sender) {
  const std::size_t header = lacksHeader(socket) ? echoHeaderSize : 0;
  if (buffer.size() < header) {
    errno = EINVAL;
    return -1;
  }
  sockaddr_in from{};
  socklen_t fromSize = sizeof from;
  const std::span<unsigned char> body = buffer.subspan(header);
  const ssize_t received =
      recvfrom(socket, body.data(), body.size(), 0, reinterpret_cast<sockaddr *>(&from), &fromSize);
  if (received < 0) return received;
  const std::size_t length = header + static_cast<std::size_t>(received);
  if (header != 0) writeHeader(buffer, length, from);
  if (sender != nullptr) *sender = from;
  return static_cast<ssize_t>(length);
}

}  // namespace orvek
