// SPDX-License-Identifier: Apache-2.0
// Tries a pick, takes it back, and puts the outcome into words.

#include "host/session/Availability.h"

#include "host/ppd/ConstraintPartners.h"
#include "host/ppd/Constraints.h"
#include "host/ppd/Wording.h"

namespace orvek {
namespace {

bool isOff(const QString &choice) {
  for (const char *off : {"False", "None", "Off", "NotInstalled"}) {
    if (choice.compare(QLatin1String(off), Qt::CaseInsensitive) == 0) return true;
  }
  return false;
}

QString reasonFor(ppd_file_t *ppd, const OptionChoice &partner) {
  if (isInstalledEquipment(ppd, partner.option) && isOff(partner.choice)) {
    return Availability::tr("needs the %1, which this printer doesn't have")
        .arg(optionText(ppd, partner.option));
  }
  return Availability::tr("not with %1").arg(namedChoice(ppd, partner));
}

// Equipment first: where it is missing, nothing else matters.
QString reasonFor(ppd_file_t *ppd, const QList<OptionChoice> &partners) {
  QStringList equipment;
  QStringList others;
  for (const OptionChoice &partner : partners) {
    QStringList &list = isInstalledEquipment(ppd, partner.option) ? equipment : others;
    const QString reason = reasonFor(ppd, partner);
    if (!list.contains(reason)) list << reason;
  }
  return (equipment.isEmpty() ? others : equipment).join(QStringLiteral(", "));
}

QString effectOf(ppd_file_t *ppd, const Resolution &resolution) {
  QStringList changes;
  for (const ChoiceChange &change : resolution.changes) {
    changes << Availability::tr("%1 would be set to %2")
                   .arg(optionText(ppd, change.option),
                        choiceText(ppd, {change.option, change.newChoice}));
  }
  return changes.isEmpty() ? QString() : changes.join(QStringLiteral(", "));
}

void addName(QSet<QString> *names, const QString &name) {
  // A custom value is constrained under a name of its own, as a choice of the option itself.
  static const QString custom = QStringLiteral("custom");
  const QString lower = name.toLower();
  names->insert(lower);
  if (lower.startsWith(custom)) names->insert(lower.mid(custom.size()));
}

QSet<QString> constrainedOptions(ppd_file_t *ppd) {
  QSet<QString> names;
  if (ppd == nullptr) return names;
  for (int i = 0; i < ppd->num_consts; ++i) {
    addName(&names, QString::fromUtf8(ppd->consts[i].option1));
    addName(&names, QString::fromUtf8(ppd->consts[i].option2));
  }
  const char *keyword = "cupsUIConstraints";
  for (const ppd_attr_t *attribute = ppdFindAttr(ppd, keyword, nullptr); attribute != nullptr;
       attribute = ppdFindNextAttr(ppd, keyword, nullptr)) {
    for (const QString &word : QString::fromUtf8(attribute->value).simplified().split(u' ')) {
      if (word.startsWith(u'*')) addName(&names, word.mid(1));
    }
  }
  return names;
}

}  // namespace

QString ChoiceAvailability::words() const {
  if (effect.isNull()) return reason;
  return Availability::tr("%1 (%2)").arg(reason, effect);
}

Availability::Availability(PrintSession &session, QObject *parent)
    : QObject(parent),
      m_session(session),
      m_constrained(constrainedOptions(session.marks().ppd())) {
  connect(&session, &PrintSession::changed, this, [this] { m_answers.clear(); });
}

ChoiceAvailability Availability::of(const QString &option, const QString &choice) {
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

  ppd_file_t *ppd = m_session.marks().ppd();
  const QList<OptionChoice> partners = partnersAmong(m_session.marks(), conflicts, *wanted);
  Marks &marks = m_session.marks();
  const MarksSnapshot before = marks.snapshot();
  const Resolution resolution = markAndResolve(marks, *wanted);
  marks.restore(before);

  ChoiceAvailability answer;
  answer.kind =
      resolution.marked ? ChoiceAvailability::Kind::Displaces : ChoiceAvailability::Kind::Unusable;
  answer.reason = reasonFor(ppd, partners);
  answer.effect = effectOf(ppd, resolution);
  return answer;
}

}  // namespace orvek
