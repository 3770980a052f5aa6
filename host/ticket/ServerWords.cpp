// SPDX-License-Identifier: Apache-2.0
// Asks libcups what each word alone and what all of them together mark.

#include "host/ticket/ServerWords.h"

#include <algorithm>
#include <array>

#include "platform/printing/PrintSettings.h"

namespace orvek {
namespace {

struct Values {
  const char *word;
  std::array<const char *, 3> values;
};
// Words that mark nothing where they ask for what libcups takes for the usual. IPP Everywhere's
// queues obey them all the same, against the choice that is marked.
constexpr std::array<Values, 3> valuesOfSilentWords{{
    {"print-color-mode", {"color", "monochrome", "auto"}},
    {"output-mode", {"color", "monochrome", "auto"}},
    {"print-quality", {"3", "4", "5"}},  // draft, normal, high: RFC 8011
}};

QList<OptionChoice> wordInAllItsValues(const OptionChoice &word) {
  QList<OptionChoice> all{word};
  for (const Values &known : valuesOfSilentWords) {
    if (!sameKeyword(known.word, word.option)) continue;
    for (const char *value : known.values) all.append({word.option, QLatin1String(value)});
  }
  return all;
}

QStringList optionsOf(Marks &marks, const OptionChoice &word) {
  QStringList options;
  for (const OptionChoice &value : wordInAllItsValues(word)) {
    for (const OptionChoice &choice : marks.meaningOf({value})) options << choice.option;
  }
  options.removeDuplicates();
  return options;
}

bool shareAnOption(const ServerWord &one, const ServerWord &other) {
  return std::any_of(one.options.begin(), one.options.end(),
                     [&](const QString &option) { return other.options.contains(option); });
}

bool touchesAny(const ServerWord &word, const QList<ServerWord> &others) {
  return std::any_of(others.begin(), others.end(),
                     [&](const ServerWord &other) { return shareAnOption(word, other); });
}

}  // namespace

ServerWords::ServerWords(Marks &marks, const QList<OptionChoice> &jobOptions) {
  QList<OptionChoice> asked;
  for (const OptionChoice &option : jobOptions) {
    if (marks.printer().has(option.option)) continue;
    m_words.removeIf([&](const ServerWord &word) { return sameKeyword(word.name, option.option); });
    const QStringList options = optionsOf(marks, option);
    if (!options.isEmpty()) m_words.append({option.option, option.choice, options});
  }
  for (const ServerWord &word : m_words) asked.append({word.name, word.value});
  m_choices = marks.meaningOf(asked);
}

ServerWords ServerWords::of(Marks &marks, const QList<OptionChoice> &queueOptions,
                            const TicketValues &ticket) {
  QList<OptionChoice> options = queueOptions;
  for (auto entry = ticket.begin(); entry != ticket.end(); ++entry) {
    options.append({entry.key(), textReading(entry.value())});
  }
  return {marks, options};
}

// What the words leave alone is expected to be as the PPD has it.
QString ServerWords::expected(const QString &option, const Marks &marks) const {
  for (const OptionChoice &choice : m_choices) {
    if (choice.option == option) return choice.choice;
  }
  const PrinterOption found = marks.printer().option(option);
  const QString standard = found.spelled(found.defaultChoice());
  return standard.isNull() ? marks.marked(option) : standard;
}

bool ServerWords::isTrue(const ServerWord &word, const Marks &marks) const {
  return std::all_of(word.options.begin(), word.options.end(), [&](const QString &option) {
    return marks.marked(option) == expected(option, marks);
  });
}

QList<ServerWord> ServerWords::untrue(const Marks &marks) const {
  QList<ServerWord> untrue;
  QList<ServerWord> rest;
  for (const ServerWord &word : m_words) (isTrue(word, marks) ? rest : untrue) << word;
  for (qsizetype i = 0; i < rest.size();) {
    if (!touchesAny(rest[i], untrue)) {
      ++i;
      continue;
    }
    untrue << rest.takeAt(i);
    i = 0;  // what was passed may share an option with this one
  }
  return untrue;
}

TicketValues withoutUntrueWords(Marks &marks, TicketValues ticket) {
  for (const ServerWord &word : ServerWords::of(marks, {}, ticket).untrue(marks)) {
    ticket.remove(word.name);
  }
  return ticket;
}

}  // namespace orvek
