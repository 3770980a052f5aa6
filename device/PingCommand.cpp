// SPDX-License-Identifier: Apache-2.0
// orvek-device ping: does a host answer? Says in one line what to do where the system forbids
// asking.

#include <getopt.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <limits>
#include <string>

#include "Common/SimplePing.h"
#include "device/Commands.h"

namespace orvek::device {
namespace {

struct PingArguments {
  const char *host = nullptr;
  int requests = 1;
  int limitMilliseconds = 200;
  bool stopAfterFirstReceive = true;
};

bool readNumber(const char *text, int *number) {
  const char *end = text + std::strlen(text);
  const auto [stopped, error] = std::from_chars(text, end, *number);
  return error == std::errc() && stopped == end && *number >= 1;
}

/// 0, or the exit status of a command line that says nothing sensible.
int readArguments(int count, char **words, PingArguments *arguments) {
  constexpr int allOption = 256;
  constexpr std::array<option, 2> longOptions{
      {{"all", no_argument, nullptr, allOption}, {nullptr, 0, nullptr, 0}}};
  opterr = 0;
  for (int option;
       (option = getopt_long(count, words, ":c:W:", longOptions.data(), nullptr)) != -1;) {
    switch (option) {
      case 'c':
        if (readNumber(optarg, &arguments->requests)) break;
        return misuse("ping", "-c takes a number of requests from 1 on");
      case 'W':
        if (readNumber(optarg, &arguments->limitMilliseconds)) break;
        return misuse("ping", "-W takes a number of milliseconds from 1 on");
      case allOption:
        arguments->stopAfterFirstReceive = false;
        break;
      case ':':
        return misuse("ping", "-c and -W each take a number");
      default:
        return misuse("ping", "there is no such option");
    }
  }
  if (count - optind != 1) return misuse("ping", "give one host");
  arguments->host = words[optind];
  return Done;
}

int complainOfSocket(const char *host) {
  if (errno != EACCES) return complain(Negative, host, std::strerror(errno));
  const std::string group = std::to_string(getegid());
  const std::string why =
      "this system lets group " + group +
      " send no echo requests (let it with: sysctl -w net.ipv4.ping_group_range=\"" + group + " " +
      group + "\")";
  return complain(Negative, host, why.c_str());
}

int complainOfSilence(const char *host) {
  const bool identifiable = getpid() <= std::numeric_limits<unsigned short>::max();
  return complain(Negative, host,
                  identifiable ? "no reply"
                               : "no reply could be told apart, as this process's number is above "
                                 "65535 (lower kernel.pid_max)");
}

int report(const char *host, int result) {
  switch (result) {
    case 0:
      return Done;
    case -1:
      return complainOfSilence(host);
    case pingGeneralError:
      return complainOfSocket(host);
    case pingUnknownHost:
      return complain(BadArgument, host, "unknown host");
    case pingBadArgument:
      return complain(BadArgument, host, "bad argument");
    case pingNoProtocol:
      return complain(Negative, host,
                      "the system knows no protocol \"icmp\" (add it to /etc/protocols)");
    case EADDRINUSE:
      return complain(Negative, host, "another program uses this echo identifier; try again");
    default:
      return complain(Negative, host, std::strerror(result));
  }
}

}  // namespace

}  // namespace orvek::device

int orvekDeviceCommand(int count, char **words, orvek::device::Output /*output*/) {
  using namespace orvek::device;
  PingArguments arguments;
  if (const int status = readArguments(count, words, &arguments)) return status;
  const int result = SimplePing(arguments.host, arguments.requests, arguments.limitMilliseconds,
                                arguments.stopAfterFirstReceive ? 1 : 0);
  return report(arguments.host, result);
}
