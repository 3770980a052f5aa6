// SPDX-License-Identifier: Apache-2.0
// Errors as values: what a function of ours gives when it may fail. May be included anywhere.
#pragma once

#include <QString>
#include <optional>
#include <utility>
#include <variant>

namespace orvek {

/// What kind of failure it is; the numbers are the exit statuses of our programs.
enum class FailureKind {
  Io = 1,       ///< a job could not be printed, a file could not be read or written
  Usage = 2,    ///< the command line, or an action on it, is wrong
  Invalid = 3,  ///< a PPD, ticket, preset or plug-in is not what it should be
};

/// One failure, said in one line: "WHAT: WHY". `what` names the file (with its line where there is
/// one) or the option; `why` says what is wrong and, where it helps, what to do.
struct Failure {
  FailureKind kind = FailureKind::Io;
  QString what;
  QString why;

  QString line() const { return what + QStringLiteral(": ") + why; }
};

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
