// SPDX-License-Identifier: Apache-2.0
// A thread that asks, and whoever waits for it.

#include "host/cli/FirstPrinter.h"

#include "host/cli/SessionStart.h"

namespace orvek {
namespace {

constexpr std::chrono::milliseconds lookAtCancelled{20};

}  // namespace

FirstPrinter::FirstPrinter(const CommandLine &line,
                           const std::shared_ptr<PasswordSource> &passwords)
    : m_line(line), m_passwords(passwords), m_thread([this] {
        const Answer answer = gatherSetup(m_line, m_passwords, &m_cancelled);
        const std::lock_guard lock(m_mutex);
        m_answer = answer;
        m_answered.notify_all();
      }) {}

FirstPrinter::~FirstPrinter() {
  m_cancelled = true;
  m_thread.join();
}

std::optional<FirstPrinter::Answer> FirstPrinter::within(std::chrono::milliseconds patience) {
  return until(m_begun + patience);
}

std::optional<FirstPrinter::Answer> FirstPrinter::until(std::chrono::steady_clock::time_point end) {
  std::unique_lock lock(m_mutex);
  m_answered.wait_until(lock, end, [this] { return m_answer.has_value(); });
  return m_answer;
}

FirstPrinter::Answer FirstPrinter::ask(const std::atomic<bool> &cancelled) {
  const bool asksAnew = m_isAnswered.exchange(true);
  return asksAnew ? gatherSetup(m_line, m_passwords, &cancelled) : wait(cancelled);
}

FirstPrinter::Answer FirstPrinter::wait(const std::atomic<bool> &cancelled) {
  while (true) {
    if (cancelled) m_cancelled = true;
    const auto soon = std::chrono::steady_clock::now() + lookAtCancelled;
    if (auto answer = until(soon)) return *answer;
  }
}

}  // namespace orvek
