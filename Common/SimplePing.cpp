// SPDX-License-Identifier: Apache-2.0
// The echo requests of SimplePing and the wait for their replies.

#include "Common/SimplePing.h"

#include <arpa/inet.h>
#include <netdb.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <ctime>

#include "platform/network/EchoSocket.h"
#include "platform/network/HostAddress.h"

namespace orvek {
namespace {

constexpr int receiveBufferSize = 2048;
constexpr int kernelBufferSize = 51200;
constexpr timeval receiveTimeout{1, 0};
constexpr std::uint8_t echoRequest = 8;
constexpr std::uint8_t echoReply = 0;
constexpr int headerLengthMask = 0x0F;
constexpr ssize_t headerLengthUnit = 4;
constexpr long microsecondsPerSecond = 1000000;
constexpr std::int64_t microsecondsPerMillisecond = 1000;

/// Header and send time as they lie in the packet.
struct EchoPacket {
  std::uint8_t type = echoRequest;
  std::uint8_t code = 0;
  std::uint16_t checksum = 0;
  std::uint16_t identifier = 0;
  std::uint16_t sequence = 0;
  std::array<std::uint8_t, 24> restOfHeader{};
  std::int64_t seconds = 0;
  std::int32_t microseconds = 0;
  std::uint32_t padding = 0;
};
static_assert(sizeof(EchoPacket) == echoPacketSize);

int errorNumber() {
  return errno != 0 ? errno : pingGeneralError;
}

std::uint16_t ownIdentifier() {
  return static_cast<std::uint16_t>(getpid());
}

bool readClock(timeval *now) {
  // Not the time of day: setting that must not prolong the wait.
  timespec time{};
  if (clock_gettime(CLOCK_MONOTONIC, &time) != 0) return false;
  *now = {time.tv_sec, time.tv_nsec / 1000};
  return true;
}

timeval difference(const timeval &from, const timeval &to) {
  timeval elapsed{to.tv_sec - from.tv_sec, to.tv_usec - from.tv_usec};
  if (elapsed.tv_usec < 0) {
    elapsed.tv_usec += microsecondsPerSecond;
    --elapsed.tv_sec;
  }
  return elapsed;
}

bool isOwnReply(const unsigned char *datagram, ssize_t length) {
  if (length < 1) return false;
  const ssize_t header = (datagram[0] & headerLengthMask) * headerLengthUnit;
  if (length - header < echoPacketSize) return false;
  EchoPacket packet;
  std::memcpy(&packet, datagram + header, sizeof packet);
  return packet.type == echoReply && static_cast<pid_t>(packet.identifier) == getpid();
}

int outcome(bool seen) {
  return seen ? 0 : -1;
}

/// What one receive brought.
enum class Received { Nothing, Reply, Other, Error };

Received receiveOne(int socket) {
  std::array<unsigned char, receiveBufferSize> buffer{};
  sockaddr_in sender{};
  const ssize_t length = receiveWithIPHeader(socket, buffer, &sender);
  if (length < 0) return errno == EAGAIN ? Received::Nothing : Received::Error;
  return isOwnReply(buffer.data(), length) ? Received::Reply : Received::Other;
}

}  // namespace
}  // namespace orvek

using namespace orvek;

int LookupHostAddress(const char *host, struct sockaddr_in *address) {
  if (host == nullptr || address == nullptr) return pingBadArgument;
  *address = {};
  in_addr parsed{};
  const bool isAddress = inet_aton(host, &parsed) != 0;
  if (isAddress && parsed.s_addr == INADDR_NONE) return pingUnknownHost;
  if (!isAddress) {
    const auto found = firstIPv4Address(host);
    if (!found) return pingUnknownHost;
    parsed = *found;
  }
  address->sin_family = AF_INET;
  address->sin_addr = parsed;
  return 0;
}

int CreateSocketForCommunicationWithHost(const struct sockaddr_in * /*address*/, int *socket) {
  if (socket == nullptr) return pingBadArgument;
  const protoent *protocol = getprotobyname("icmp");
  if (protocol == nullptr) return pingNoProtocol;
  FileDescriptor opened = openEchoSocket(protocol->p_proto);
  if (!opened.valid()) return pingGeneralError;
  if (!bindEchoIdentifier(opened.get(), ownIdentifier())) return errorNumber();
  setsockopt(opened.get(), SOL_SOCKET, SO_RCVBUF, &kernelBufferSize, sizeof kernelBufferSize);
  if (setsockopt(opened.get(), SOL_SOCKET, SO_RCVTIMEO, &receiveTimeout, sizeof receiveTimeout) !=
      0) {
    return errorNumber();
  }
  *socket = opened.release();
  return 0;
}

int CreateAndSendICMPPacket(const struct sockaddr_in *address, unsigned short sequence,
                            int socket) {
  if (address == nullptr) return pingBadArgument;
  EchoPacket packet;
  packet.identifier = ownIdentifier();
  packet.sequence = sequence;
  timeval now{};
  if (gettimeofday(&now, nullptr) != 0) return errorNumber();
  packet.seconds = now.tv_sec;
  packet.microseconds = static_cast<std::int32_t>(now.tv_usec);
  packet.checksum = in_cksum(&packet, sizeof packet);
  errno = 0;
  const ssize_t sent = sendto(socket, &packet, sizeof packet, 0,
                              reinterpret_cast<const sockaddr *>(address), sizeof *address);
  return sent == static_cast<ssize_t>(sizeof packet) ? 0 : errorNumber();
}

int WaitAndPrintICMPs(int socket, int limitMilliseconds, unsigned int stopAfterFirstReceive,
                      unsigned int *replySeen) {
  if (replySeen == nullptr || limitMilliseconds < 1) return pingBadArgument;
  *replySeen = 0;
  const std::int64_t limit = limitMilliseconds * microsecondsPerMillisecond;
  timeval start{};
  bool started = false;
  for (;;) {
    const Received received = receiveOne(socket);
    if (!started && !readClock(&start)) return errorNumber();
    started = true;
    if (received == Received::Error) return outcome(*replySeen != 0);
    timeval now{};
    if (received == Received::Reply) {
      *replySeen = 1;
      if (!readClock(&now)) return errorNumber();
    }
    const bool clockWorks = readClock(&now);
    const timeval elapsed = difference(start, now);
    const bool over = !clockWorks || elapsed.tv_sec >= 1 || elapsed.tv_usec >= limit;
    if (stopAfterFirstReceive != 0 || over) return outcome(*replySeen != 0);
  }
}

int SimplePing(const char *host, int count, int limitMilliseconds,
               unsigned int stopAfterFirstReceive) {
  if (host == nullptr || count < 1 || limitMilliseconds < 1) return pingBadArgument;
  sockaddr_in address{};
  int result = LookupHostAddress(host, &address);
  if (result != 0) return result;
  int opened = -1;
  result = CreateSocketForCommunicationWithHost(&address, &opened);
  if (result != 0) return result;
  const FileDescriptor socket(opened);
  for (int sequence = 0; sequence < count && result == 0; ++sequence) {
    result = CreateAndSendICMPPacket(&address, static_cast<unsigned short>(sequence), socket.get());
    if (result != 0) break;
    unsigned int replySeen = 0;
    result = WaitAndPrintICMPs(socket.get(), limitMilliseconds, stopAfterFirstReceive, &replySeen);
  }
  return result;
}
