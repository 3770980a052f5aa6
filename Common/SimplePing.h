// SPDX-License-Identifier: Apache-2.0
// Whether a host answers ICMP echo requests (RFC 792), without special rights. Results are 0, -1
// where no reply came, or a positive error number.
#pragma once

#include <netinet/in.h>

namespace orvek {

// These results are numbers of their own, whatever this system's errno values are.
inline constexpr int pingBadArgument = 22;
/// The system knows no protocol called "icmp".
inline constexpr int pingNoProtocol = 46;
inline constexpr int pingUnknownHost = 65;
/// No socket, or a failure that gave no error number.
inline constexpr int pingGeneralError = 1;

/// An echo request: header, send time, padding.
inline constexpr int echoPacketSize = 48;

}  // namespace orvek

extern "C" {

/// Sends up to `count` echo requests to `host`, each after the one before was answered.
/// Gives 0 where all were answered, -1 where one was not, orvek::pingBadArgument for a null host, a
/// count or a limit below 1, or whatever made a step below fail. The limit and the flag are
/// WaitAndPrintICMPs'.
int SimplePing(const char *host, int count, int limitMilliseconds,
               unsigned int stopAfterFirstReceive);

/// The IPv4 address of a dotted address or a host name; port 0. Gives 0, orvek::pingBadArgument for
/// a null argument, orvek::pingUnknownHost (also for the broadcast address 255.255.255.255, which
/// is never taken). The address is zeroed first.
int LookupHostAddress(const char *host, struct sockaddr_in *address);

/// Opens an ICMP socket that sends and hears echoes under the low 16 bits of the process id, and
/// waits at most 1 second in a receive. The address is not consulted. The caller closes the socket.
/// Gives 0, orvek::pingNoProtocol, orvek::pingGeneralError (errno says why) where the system gives
/// no socket, errno where the identifier is taken (EADDRINUSE) or the time-out is refused.
int CreateSocketForCommunicationWithHost(const struct sockaddr_in *address, int *socket);

/// Sends one echo request of orvek::echoPacketSize bytes. Gives 0, or errno (1 where that is 0).
int CreateAndSendICMPPacket(const struct sockaddr_in *address, unsigned short sequence, int socket);

/// Waits for an echo reply with the process's identifier and sets `replySeen` to 1 when it came.
/// With `stopAfterFirstReceive` there is one receive, whatever it brings. Else receiving goes on
/// until, counted from the end of the first receive, `limitMilliseconds` or a whole second are
/// over. A process id above 65535 fits no identifier: its replies are never recognised. Gives 0
/// where a reply was seen, -1 where not, orvek::pingBadArgument for a null `replySeen` or a limit
/// below 1, errno (or 1) where the clock fails. Prints nothing.
int WaitAndPrintICMPs(int socket, int limitMilliseconds, unsigned int stopAfterFirstReceive,
                      unsigned int *replySeen);

/// The Internet checksum (RFC 1071) of `length` bytes, in memory order, as it is stored in a
/// packet. Any alignment; a final odd byte counts as a word's low-order byte. Null or a length
/// below 1 is the checksum of nothing, 0xFFFF.
unsigned short in_cksum(const void *bytes, int length);

}  // extern "C"
