// SPDX-License-Identifier: Apache-2.0
// Reads the words of an action.

#include "host/cli/Action.h"

#include <QMap>
#include <algorithm>

#include "platform/printing/PrintSettings.h"

namespace orvek {
namespace {

Result<Action> parseWord(const QString &text) {
  static const QMap<QString, Action::Kind> words{
      {QStringLiteral("view"), Action::Kind::View},
      {QStringLiteral("restore"), Action::Kind::Restore},
      {QStringLiteral("save"), Action::Kind::Save},
      {QStringLiteral("willShow"), Action::Kind::WillShow},
      {QStringLiteral("reopen"), Action::Kind::Reopen},
  };
  const auto found = words.find(text);
  Action action{Action::Kind::Control, {}, {}, 0, text};
  if (found == words.end()) {
    return actionFailure(action, QStringLiteral("unknown action (%1, nup=INTEGER or CONTROL=VALUE)")
                                     .arg(QStringList(words.keys()).join(QStringLiteral(", "))));
  }
  action.kind = *found;
  return action;
}

Result<Action> parsePagesPerSheet(Action action) {
  const std::optional<int> number = integerIn(action.value);
  if (!number) return actionFailure(action, QStringLiteral("nup takes an integer"));
  action.kind = Action::Kind::PagesPerSheet;
  action.number = *number;
  return action;
}

}  // namespace

Result<Action> parseAction(const QString &text) {
  const qsizetype equals = text.indexOf(QLatin1Char('='));
  if (equals < 0) return parseWord(text);
  Action action{Action::Kind::Control, text.left(equals), text.mid(equals + 1), 0, text};
  if (action.control == QLatin1String("nup")) return parsePagesPerSheet(action);
  return action;
}

std::optional<int> integerIn(const QString &text) {
  const bool hasSign = text.startsWith(QLatin1Char('-')) || text.startsWith(QLatin1Char('+'));
  const QStringView digits = QStringView(text).mid(hasSign ? 1 : 0);
  const bool areDigits =
      std::all_of(digits.begin(), digits.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
  if (digits.isEmpty() || !areDigits) return std::nullopt;
  return leadingInteger(text);
}

Failure actionFailure(const Action &action, const QString &why) {
  return {FailureKind::Usage, QStringLiteral("--do %1").arg(action.text), why};
}

}  // namespace orvek
