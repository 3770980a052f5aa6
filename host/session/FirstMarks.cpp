// SPDX-License-Identifier: Apache-2.0
// Marks first as it was asked for, and option by option where that is contradictory.

#include "host/session/FirstMarks.h"

#include <algorithm>
#include <utility>

#include "host/ppd/MarksTrial.h"
#include "host/ticket/ServerWords.h"

namespace orvek {
namespace {

enum class Source { Queue, TicketWord, Ticket };

/// One option that something asks for.
struct Wish {
  QString option;
  /// The one that counts first, then what would be in force without it.
  QList<std::pair<QString, Source>> choices;
};

Failure unknownMark(const Marks &marks, const OptionChoice &mark) {
  const QString what = QStringLiteral("--mark %1=%2").arg(mark.option, mark.choice);
  const bool optionIsKnown = marks.printer().has(mark.option);
  return {FailureKind::Usage, what,
          optionIsKnown ? QStringLiteral("the PPD's option %1 has no such choice").arg(mark.option)
                        : QStringLiteral("the PPD has no such option")};
}

QList<OptionChoice> choicesIn(const TicketValues &ticket) {
  QList<OptionChoice> choices;
  for (auto entry = ticket.begin(); entry != ticket.end(); ++entry) {
    choices.append({entry.key(), textReading(entry.value())});
  }
  return choices;
}

/// Everything that is asked for, from what counts least to what counts most.
class Asked {
 public:
  Asked(Marks &marks, const TicketValues &ticket, const SessionSetup &setup)
      : m_queue(marks.meaningOf(setup.queueOptions)),
        // A choice by its own name counts before a word that speaks of the same.
        m_words(ServerWords::of(marks, {}, ticket).choices()),
        m_ticket(choicesIn(ticket)),
        m_given(setup.marks) {}

  Status markAll(Marks &marks) const {
    for (const auto &choices : {m_queue, m_words, m_ticket}) {
      for (const OptionChoice &choice : choices) marks.mark(choice.option, choice.choice);
    }
    return markGiven(marks);
  }

  Status markGiven(Marks &marks) const {
    for (const OptionChoice &mark : m_given) {
      if (!marks.mark(mark.option, mark.choice)) return unknownMark(marks, mark);
    }
    return {};
  }

  bool isGiven(const QString &option) const { return isNamedAmong(m_given, option); }

  /// Without the options that a given mark decides.
  QList<Wish> wishes(const Marks &marks) const {
    QList<Wish> wishes;
    add(marks, m_queue, Source::Queue, &wishes);
    add(marks, m_words, Source::TicketWord, &wishes);
    add(marks, m_ticket, Source::Ticket, &wishes);
    std::stable_partition(wishes.begin(), wishes.end(), [&](const Wish &wish) {
      return marks.printer().isEquipment(wish.option);
    });
    return wishes;
  }

 private:
  // An option's turn comes with the choice that counts most.
  void add(const Marks &marks, const QList<OptionChoice> &choices, Source source,
           QList<Wish> *wishes) const {
    for (const OptionChoice &asked : choices) {
      const auto choice = marks.spelled(asked.option, asked.choice);
      if (!choice || isGiven(choice->option)) continue;
      const auto known = std::find_if(wishes->begin(), wishes->end(), [&](const Wish &wish) {
        return wish.option == choice->option;
      });
      Wish wish{choice->option, {}};
      if (known != wishes->end()) wish = wishes->takeAt(known - wishes->begin());
      wish.choices.prepend({choice->choice, source});
      wishes->append(wish);
    }
  }

  QList<OptionChoice> m_queue;
  QList<OptionChoice> m_words;
  QList<OptionChoice> m_ticket;
  QList<OptionChoice> m_given;
};

/// Settles contradictory wishes one by one.
class Settlement {
 public:
  Settlement(Marks &marks, Ticket &ticket, const Asked &asked)
      : m_marks(marks), m_ticket(ticket), m_asked(asked) {}

  QList<Resolution> settle() {
    for (const Wish &wish : m_asked.wishes(m_marks)) grant(wish);
    return m_resolutions;
  }

 private:
  void grant(const Wish &wish) {
    for (const auto &[choice, source] : wish.choices) {
      const Resolution resolution = pick({wish.option, choice}, source);
      if (!resolution.marked || !resolution.changes.isEmpty()) m_resolutions << resolution;
      if (resolution.marked) return;
      if (source == Source::Ticket) removeFromTicket(wish.option);
    }
  }

  Resolution pick(const OptionChoice &choice, Source source) {
    if (source == Source::Queue) return pickSparingGivenMarks(choice);
    Resolution resolution = markAndResolve(m_marks, choice);
    for (const ChoiceChange &change : resolution.changes) {
      removeFromTicket(change.option);  // where it may stand in other letters
      m_ticket.setValue(change.option, change.newChoice);
    }
    return resolution;
  }

  Resolution pickSparingGivenMarks(const OptionChoice &choice) {
    MarksTrial trial(m_marks);
    const Resolution resolution = markAndResolve(m_marks, choice);
    QList<OptionChoice> given;
    for (const ChoiceChange &change : resolution.changes) {
      if (m_asked.isGiven(change.option)) given.append({change.option, change.oldChoice});
    }
    if (given.isEmpty()) {
      trial.keep();
      return resolution;
    }
    return {resolution.pick, false, {}, given};
  }

  void removeFromTicket(const QString &option) {
    for (const QString &key : m_ticket.values().keys()) {
      if (sameKeyword(key, option)) m_ticket.setValue(key, QVariant());
    }
  }

  Marks &m_marks;
  Ticket &m_ticket;
  const Asked &m_asked;
  QList<Resolution> m_resolutions;
};

}  // namespace

Result<QList<Resolution>> markFirst(Marks &marks, Ticket &ticket, const SessionSetup &setup) {
  marks.markDefaults();
  const Asked asked(marks, ticket.values(), setup);
  if (const Status marked = asked.markAll(marks); !marked) return marked.failure();
  if (marks.conflicts().isEmpty()) return QList<Resolution>();
  marks.markDefaults();
  if (const Status marked = asked.markGiven(marks); !marked) return marked.failure();
  return Settlement(marks, ticket, asked).settle();
}

QList<OptionChoice> withMeanings(Marks &marks, QList<OptionChoice> options) {
  for (const OptionChoice &meant : marks.meaningOf(options)) {
    if (!isNamedAmong(options, meant.option)) options << meant;
  }
  return options;
}

}  // namespace orvek
