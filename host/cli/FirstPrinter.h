// SPDX-License-Identifier: Apache-2.0
// The printer that a window is to open on, asked for while the window comes up.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

#include "host/cli/CommandLine.h"
#include "host/printers/Passwords.h"
#include "host/session/SessionSetup.h"

namespace orvek {

/// One question to a print server, on a thread of its own, which ends before it does. May be asked
/// for its answer from any thread. Shares the passwords.
class FirstPrinter {
 public:
  using Answer = Result<SessionSetup>;

  /// Asks for the printer that the command line names.
  FirstPrinter(const CommandLine &line, const std::shared_ptr<PasswordSource> &passwords);
  ~FirstPrinter();
  FirstPrinter(const FirstPrinter &) = delete;
  FirstPrinter &operator=(const FirstPrinter &) = delete;

  /// The answer, if it comes this soon after it was asked for.
  std::optional<Answer> within(std::chrono::milliseconds patience);

  /// Waits for the answer; drops the question once `cancelled` is set. Whoever calls it again does
  /// not want that answer: it asks anew then.
  Answer ask(const std::atomic<bool> &cancelled);

 private:
  std::optional<Answer> until(std::chrono::steady_clock::time_point end);
  Answer wait(const std::atomic<bool> &cancelled);

  CommandLine m_line;
  std::shared_ptr<PasswordSource> m_passwords;
  std::atomic<bool> m_isAnswered = false;
  std::chrono::steady_clock::time_point m_begun = std::chrono::steady_clock::now();
  std::atomic<bool> m_cancelled = false;
  std::mutex m_mutex;
  std::condition_variable m_answered;
  std::optional<Answer> m_answer;
  std::thread m_thread;
};

}  // namespace orvek
