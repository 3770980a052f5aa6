// SPDX-License-Identifier: Apache-2.0
// The process that talks to a print server in this program's place: whatever a server does to it,
// it can be ended.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <utility>

#include "platform/system/Result.h"
#include "platform/system/SocketProgram.h"

namespace orvek {

/// A running helper and the socket to it. Whoever holds it owns both: destroying it kills the
/// process, which does not outlive this program either. Use it on one thread.
class HelperProcess {
 public:
  /// The one that was adopted, or a new one. Fails with the helper's path where it can't be run.
  static Result<HelperProcess> start();

  /// Takes over a helper that was started before, on a thread that lasts as long as the program;
  /// none, where that failed.
  static void adopt(const SocketProgram &started);

  ~HelperProcess();
  HelperProcess(HelperProcess &&other) noexcept
      : m_process(std::exchange(other.m_process, -1)),
        m_socket(std::exchange(other.m_socket, -1)) {}
  HelperProcess &operator=(HelperProcess &&) = delete;
  HelperProcess(const HelperProcess &) = delete;
  HelperProcess &operator=(const HelperProcess &) = delete;

  /// Does not block.
  int socket() const { return m_socket; }

  void kill();

  /// Waits this long for it to end by itself; whether it has.
  bool hasEnded(std::chrono::milliseconds patience);

  /// Lets it finish by itself, in what time this program takes to its own end, and a moment more
  /// there.
  static void letFinish(HelperProcess process);

 private:
  explicit HelperProcess(const SocketProgram &started)
      : m_process(started.process), m_socket(started.socket) {}

  /// -1: has ended.
  pid_t m_process;
  int m_socket;
};

}  // namespace orvek
