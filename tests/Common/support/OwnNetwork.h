// SPDX-License-Identifier: Apache-2.0
// Two hosts on a cable of their own, made of network namespaces: the tests run on one, whatever
// they talk to on the other ("the printer"). Nothing of the machine's own network is touched.
#pragma once

#include <functional>
#include <string>

namespace orvek::test {

class OwnNetwork {
 public:
  static constexpr const char *ownAddress = "10.99.0.2";
  static constexpr const char *printerAddress = "10.99.0.1";

  /// Runs `tests` in a process on the first host and gives its result; on a machine that allows no
  /// namespaces it runs here, and whyNot() says so. Call before any thread is started.
  static int run(const std::function<int()> &tests);

  /// Why there are no two hosts; empty if there are.
  static const std::string &whyNot();

  /// Moves the calling thread to the printer. Its sockets stay there wherever they are used.
  static bool moveThreadToPrinter();

  /// Starts a shell command on the printer and gives its process, which leads a group of its own.
  static int startOnPrinter(const std::string &command);
};

/// Ends the test as skipped where there are no two hosts.
#define NEEDS_OWN_NETWORK() \
  if (!OwnNetwork::whyNot().empty()) GTEST_SKIP() << OwnNetwork::whyNot()

}  // namespace orvek::test
