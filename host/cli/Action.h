// SPDX-License-Identifier: Apache-2.0
// What --do may ask for: the words of an action and their reading. Knows no panel.
#pragma once

#include <QString>
#include <optional>

#include "platform/system/Result.h"

namespace orvek {

/// One thing to do as the user or the host would. Plain data.
struct Action {
  enum class Kind { Control, PagesPerSheet, View, Restore, Save, WillShow, Reopen };

  Kind kind = Kind::Control;
  /// Control: the control's name.
  QString control;
  /// Control: what to put into it.
  QString value;
  /// PagesPerSheet.
  int number = 0;
  /// As it was given, for failures.
  QString text;
};

/// Reads an action. Usage failures name the action.
Result<Action> parseAction(const QString &text);

/// The INTEGER of an action: decimal digits after an optional sign and nothing else. One beyond 32
/// bits is the nearest 32-bit number, as in tickets.
std::optional<int> integerIn(const QString &text);

/// The failure of an action, as a Usage failure that names it.
Failure actionFailure(const Action &action, const QString &why);

}  // namespace orvek
