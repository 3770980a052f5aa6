// SPDX-License-Identifier: Apache-2.0
// Errors as values: what a function of ours gives when it may fail. May be included anywhere.
#pragma once

#include <QString>
#include <optional>
#include <utility>
#include <variant>

#include "platform/system/Phrase.h"

namespace orvek {

/// What kind of failure it is.
enum class FailureKind {
  /// A job could not be printed, a file could not be read or written.
  Io = 1,
  /// The command line, or an action on it, is wrong.
  Usage = 2,
  /// A PPD, ticket, preset or plug-in is not what it should be.
  Invalid = 3,
  /// Whoever waited for it no longer wants it.
  Cancelled = 4,
};

/// The exit status that a program of ours ends with. What was cancelled is not done, as what
/// failed.
constexpr int exitStatusOf(FailureKind kind) {
  return static_cast<int>(kind == FailureKind::Cancelled ? FailureKind::Io : kind);
}

/// One failure, said in one line: "WHAT: WHY". A value, which may go from thread to thread.
struct Failure {
  FailureKind kind = FailureKind::Io;
  /// Names the file (with its line where there is one) or the option.
  Phrase what;
  /// What is wrong and, where it helps, what to do.
  Phrase why;

  /// In English.
  QString line() const { return Phrase::filled(QStringLiteral("%1: %2"), std::vector{what, why}); }
};

/// What a function gives that was asked to end before it was done. `what` is what it was about.
inline Failure cancelledFailure(const Phrase &what) {
  return {FailureKind::Cancelled, what, Phrase("cancelled")};
}

/// A value of type T, or the failure that kept it from being made.
template <typename T>
class [[nodiscard]] Result {
 public:
  Result(T value) : m_state(std::in_place_index<0>, std::move(value)) {}
  Result(Failure failure) : m_state(std::in_place_index<1>, std::move(failure)) {}

  bool ok() const { return m_state.index() == 0; }
  explicit operator bool() const { return ok(); }

  /// Only where ok().
  T &value() { return *std::get_if<0>(&m_state); }
  const T &value() const { return *std::get_if<0>(&m_state); }
  T take() { return std::move(*std::get_if<0>(&m_state)); }

  /// Only where not ok().
  const Failure &failure() const { return *std::get_if<1>(&m_state); }

 private:
  std::variant<T, Failure> m_state;
};

/// Success without a value, or a failure.
class [[nodiscard]] Status {
 public:
  Status() = default;
  Status(Failure failure) : m_failure(std::move(failure)) {}

  bool ok() const { return !m_failure.has_value(); }
  explicit operator bool() const { return ok(); }

  /// Only where not ok().
  const Failure &failure() const { return *m_failure; }

 private:
  std::optional<Failure> m_failure;
};

}  // namespace orvek
