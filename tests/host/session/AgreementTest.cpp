// SPDX-License-Identifier: Apache-2.0
// Every pair of a conflicting ticket and given mark of the printers' own PPDs: however it is
// settled, marks, ticket, conflicts, panel, summary and job say the same.

#include <gtest/gtest.h>

#include "host/ppd/Wording.h"
#include "host/session/PrintSession.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

// The panel's names for its selections.
const QMap<QString, QString> selectionNames{{"OVKStapling", "stapling"},
                                            {"OVKFolding", "folding"},
                                            {"OVKPunching", "punch"},
                                            {"OutputBin", "paperDest"}};

QList<OptionChoice> choicesOf(const PrinterDescription &printer) {
  QList<OptionChoice> choices;
  for (const PrinterOptionGroup &group : printer.options()) {
    for (const PrinterOption &option : group.options) {
      for (const PrinterChoice &choice : option.choices()) {
        choices.append({option.keyword(), choice.keyword});
      }
    }
  }
  return choices;
}

struct Pair {
  OptionChoice ticket;
  OptionChoice mark;
};

class Agreement : public testing::TestWithParam<const char *> {
 protected:
  void SetUp() override {
    printer =
        PrinterDescription::open(QStringLiteral(ORVEK_SOURCE_DIR "/printers/") + GetParam()).take();
    plugin = std::make_shared<LoadedPlugin>(loadPlugin(QStringLiteral(ORVEK_BUNDLE_DIR)).take());
    all = choicesOf(*printer);
  }

  /// Those where ticket and mark, beside the defaults, bring a conflict that the mark alone does
  /// not.
  QList<Pair> conflictingPairs() {
    QList<Pair> pairs;
    Marks marks(*printer);
    for (const OptionChoice &mark : all) {
      const QList<OptionChoice> own = conflictsOfMark(mark);
      for (const OptionChoice &ticket : all) {
        if (ticket.option == mark.option) continue;
        marks.markDefaults();
        marks.mark(ticket.option, ticket.choice);
        marks.mark(mark.option, mark.choice);
        if (marks.conflicts().size() > own.size()) pairs.append({ticket, mark});
      }
    }
    return pairs;
  }

  QList<OptionChoice> conflictsOfMark(const OptionChoice &mark) {
    Marks marks(*printer);
    marks.markDefaults();
    marks.mark(mark.option, mark.choice);
    return marks.conflicts();
  }

  std::unique_ptr<PrintSession> begin(const Pair &pair) {
    SessionSetup setup;
    setup.printer = printer;
    setup.ticket = {{pair.ticket.option, pair.ticket.choice}};
    setup.marks = {pair.mark};
    auto session = PrintSession::begin(setup).take();
    session->openPanels({plugin});
    return session;
  }

  void expectAgreement(const Pair &pair) {
    const QList<OptionChoice> own = conflictsOfMark(pair.mark);
    const auto session = begin(pair);
    expectTicketAsMarked(*session);
    expectNoMoreConflictsThan(own, *session);
    expectJobAsMarked(*session, pair);
    expectPanelAsMarked(*session);
    EXPECT_FALSE(session->record().notices().isEmpty());
    if (printer->isEquipment(pair.mark.option)) {
      EXPECT_EQ(session->marks().marked(pair.mark.option), pair.mark.choice);
    }
  }

  static void expectTicketAsMarked(const PrintSession &session) {
    const TicketValues ticket = session.ticket().values();
    for (auto entry = ticket.begin(); entry != ticket.end(); ++entry) {
      const QString marked = session.marks().marked(entry.key());
      if (!marked.isNull()) {
        EXPECT_EQ(textReading(entry.value()), marked) << entry.key().toStdString();
      }
    }
  }

  static void expectNoMoreConflictsThan(const QList<OptionChoice> &own,
                                        const PrintSession &session) {
    for (const OptionChoice &conflict : session.marks().conflicts()) {
      EXPECT_TRUE(own.contains(conflict))
          << conflict.option.toStdString() << '=' << conflict.choice.toStdString();
    }
  }

  static void expectJobAsMarked(PrintSession &session, const Pair &pair) {
    const QMap<QString, QString> options = session.job().options();
    for (const OptionChoice &mark : session.marks().all()) {
      if (options.contains(mark.option)) {
        EXPECT_EQ(options.value(mark.option), mark.choice) << mark.option.toStdString();
      }
    }
    for (const OptionChoice &mark : session.marks().differingFromDefaults()) {
      EXPECT_TRUE(options.contains(mark.option)) << mark.option.toStdString();
    }
    if (session.marks().marked(pair.ticket.option) != pair.ticket.choice) {
      EXPECT_NE(options.value(pair.ticket.option), pair.ticket.choice);
    }
  }

  void expectPanelAsMarked(PrintSession &session) {
    QMap<QString, QString> summary;
    for (const auto &[title, value] : session.panels().summary()) summary.insert(title, value);
    QMap<QString, QString> selections;
    for (const auto &[name, keyword] :
         session.panels().first()->inspection()->inspectedSelections()) {
      selections.insert(name, keyword);
    }
    for (auto name = selectionNames.begin(); name != selectionNames.end(); ++name) {
      const QString marked = session.marks().marked(name.key());
      if (marked.isNull()) continue;
      EXPECT_EQ(selections.value(name.value()), marked) << name.key().toStdString();
      const QString title = optionText(*printer, name.key());
      EXPECT_EQ(summary.value(title), choiceText(*printer, {name.key(), marked}));
    }
  }

  std::shared_ptr<PrinterDescription> printer;
  std::shared_ptr<LoadedPlugin> plugin;
  QList<OptionChoice> all;
};

TEST_P(Agreement, HoldsForEveryConflictingPairOfTicketAndMark) {
  const QList<Pair> pairs = conflictingPairs();
  ASSERT_GT(pairs.size(), 10);
  RecordProperty("pairs", static_cast<int>(pairs.size()));
  for (const Pair &pair : pairs) {
    const QString words = pair.ticket.option + '=' + pair.ticket.choice + " in the ticket, " +
                          pair.mark.option + '=' + pair.mark.choice + " marked";
    SCOPED_TRACE(words.toStdString());
    expectAgreement(pair);
    if (HasFailure()) break;
  }
}

INSTANTIATE_TEST_SUITE_P(OfThePrinters, Agreement,
                         testing::Values("Orvek-2120.ppd", "Orvek-4150.ppd", "Orvek-6180.ppd"),
                         [](const auto &printer) {
                           return std::string(printer.param).substr(6, 4);
                         });

}  // namespace
}  // namespace orvek::test
