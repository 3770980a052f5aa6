// SPDX-License-Identifier: Apache-2.0
// Calls of the C library that fail when a test says so: what no network and no machine can be made
// to do at a test's wish.
#pragma once

namespace orvek::test {

/// While it lives, one call of `function` from this thread fails: the one after `before` others.
/// `error` is what errno is set to; 0 leaves it alone. One at a time; linked into a program, it
/// stands in front of socket, bind, setsockopt, sendto, recvfrom, poll, getifaddrs, getprotobyname
/// and gettimeofday, which otherwise do what they always do.
class FailingCall {
 public:
  FailingCall(const char *function, int error, int before = 0);
  ~FailingCall();
  FailingCall(const FailingCall &) = delete;
  FailingCall &operator=(const FailingCall &) = delete;
};

}  // namespace orvek::test
