// SPDX-License-Identifier: Apache-2.0
// Tries a pick, takes it back, and puts the outcome into words.

#include "host/session/Availability.h"

#include "host/ppd/Constraints.h"
#include "host/ppd/Wording.h"
#include "host/session/CommonSettings.h"

namespace orvek {
namespace {

QString reasonFor(const PrinterDescription &printer, const OptionChoice &partner) {
  if (printer.isEquipment(partner.option) &&
      isAnyOf(partner.choice, {"False", "None", "Off", "NotInstalled"})) {
    return Availability::tr("needs the %1, which this printer doesn't have")
        .arg(optionText(printer, partner.option));
  }
  return Availability::tr("not with %1").arg(namedChoice(printer, partner));
}

// Equipment first: where it is missing, nothing else matters.
QString reasonFor(const PrinterDescription &printer, const QList<OptionChoice> &partners) {
  QStringList equipment;
  QStringList others;
  for (const OptionChoice &partner : partners) {
    QStringList &list = printer.isEquipment(partner.option) ? equipment : others;
    const QString reason = reasonFor(printer, partner);
    if (!list.contains(reason)) list << reason;
  }
  return (equipment.isEmpty() ? others : equipment).join(QStringLiteral(", "));
}

QString effectOf(const PrinterDescription &printer, const Resolution &resolution) {
  QStringList changes;
  for (const ChoiceChange &change : resolution.changes) {
    changes << Availability::tr("%1 would be set to %2")
                   .arg(optionText(printer, change.option),
                        choiceText(printer, {change.option, change.newChoice}));
  }
  return changes.isEmpty() ? QString() : changes.join(QStringLiteral(", "));
}

}  // namespace

QString ChoiceAvailability::words() const {
  if (effect.isNull()) return reason;
  return Availability::tr("%1 (%2)").arg(reason, effect);
}

Availability::Availability(PrintSession &session, QObject *parent)
    : QObject(parent),
      m_session(session),
      m_constrained(session.marks().printer().constrainedPairs().names()) {
  connect(&session, &PrintSession::changed, this, [this] { m_answers.clear(); });
}

ChoiceAvailability Availability::of(const QString &option, const QString &choice) {
  const auto sides = sidesOfBooklet(m_session);
  if (sides && sameKeyword(option, sides->option)) {
    if (sameKeyword(choice, sides->choice)) return {};
    return {ChoiceAvailability::Kind::Unusable, tr("a booklet is printed on both sides"), {}};
  }
  if (!m_constrained.contains(option.toLower())) return {};
  const QString key = option + QLatin1Char('=') + choice;
  const auto known = m_answers.constFind(key);
  if (known != m_answers.constEnd()) return *known;
  const ChoiceAvailability answer = find({option, choice});
  m_answers.insert(key, answer);
  return answer;
}

ChoiceAvailability Availability::find(const OptionChoice &pick) {
  const std::optional<OptionChoice> wanted = m_session.marks().spelled(pick.option, pick.choice);
  if (!wanted) return {};
  const QList<OptionChoice> conflicts = conflictsOf(m_session.marks(), *wanted);
  if (conflicts.isEmpty()) return {};

  const PrinterDescription &printer = m_session.marks().printer();
  const QList<OptionChoice> partners = partnersAmong(conflicts, printer, *wanted);
  const Resolution resolution = tryPick(m_session.marksToTry(), *wanted);

  ChoiceAvailability answer;
  answer.kind =
      resolution.marked ? ChoiceAvailability::Kind::Displaces : ChoiceAvailability::Kind::Unusable;
  answer.reason = reasonFor(printer, partners);
  answer.effect = effectOf(printer, resolution);
  return answer;
}

}  // namespace orvek
