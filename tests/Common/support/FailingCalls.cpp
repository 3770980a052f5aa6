// SPDX-License-Identifier: Apache-2.0
// Functions of the C library by their own names, in front of the library's.

// The hardened headers define some of them in place.
#undef _FORTIFY_SOURCE

#include "tests/Common/support/FailingCalls.h"

#include <dlfcn.h>
#include <ifaddrs.h>
#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/time.h>

#include <cerrno>
#include <cstring>

namespace {

thread_local const char *failing = nullptr;
thread_local int failure = 0;
thread_local int callsBefore = 0;

bool failsNow(const char *function) {
  if (failing == nullptr || std::strcmp(failing, function) != 0 || callsBefore-- != 0) return false;
  if (failure != 0) errno = failure;
  return true;
}

/// The library's own function of that name.
template <class Function>
Function *next(const char *name) {
  return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

}  // namespace

orvek::test::FailingCall::FailingCall(const char *function, int error, int before) {
  failing = function;
  failure = error;
  callsBefore = before;
}

orvek::test::FailingCall::~FailingCall() {
  failing = nullptr;
}

// The library declares some of their arguments as never null, and this one may be called with any.
#define ORVEK_MAY_FAIL(function, failed, ...)                    \
  if (failsNow(#function)) return failed;                        \
  static auto *const real = next<decltype(function)>(#function); \
  return real(__VA_ARGS__)

extern "C" {

int socket(int domain, int type, int protocol) noexcept {
  ORVEK_MAY_FAIL(socket, -1, domain, type, protocol);
}

int bind(int descriptor, const sockaddr *address, socklen_t size) noexcept {
  ORVEK_MAY_FAIL(bind, -1, descriptor, address, size);
}

int setsockopt(int descriptor, int level, int name, const void *value, socklen_t size) noexcept {
  ORVEK_MAY_FAIL(setsockopt, -1, descriptor, level, name, value, size);
}

ssize_t sendto(int descriptor, const void *bytes, size_t count, int flags, const sockaddr *to,
               socklen_t size) {
  ORVEK_MAY_FAIL(sendto, -1, descriptor, bytes, count, flags, to, size);
}

ssize_t recvfrom(int descriptor, void *bytes, size_t count, int flags, sockaddr *from,
                 socklen_t *size) {
  ORVEK_MAY_FAIL(recvfrom, -1, descriptor, bytes, count, flags, from, size);
}

int poll(pollfd *waiting, nfds_t count, int limit) {
  ORVEK_MAY_FAIL(poll, -1, waiting, count, limit);
}

int getifaddrs(ifaddrs **list) noexcept {
  ORVEK_MAY_FAIL(getifaddrs, -1, list);
}

protoent *getprotobyname(const char *name) {
  ORVEK_MAY_FAIL(getprotobyname, nullptr, name);
}

int gettimeofday(timeval *time, void *zone) noexcept {
  ORVEK_MAY_FAIL(gettimeofday, -1, time, zone);
}

}  // extern "C"
