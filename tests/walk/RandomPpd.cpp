// SPDX-License-Identifier: Apache-2.0
// Puts options and constraints together.

#include "tests/walk/RandomPpd.h"

#include "tests/support/TestPPD.h"

namespace orvek::test {
namespace {

QList<OptionText> knownOptions() {
  return {staplingOption(),  foldingOption(), punchOption(),
          outputBinOption(), jogOption(),     pageSizeOption()};
}

OptionText unknownOption(QRandomGenerator &random, int number) {
  OptionText option{QStringLiteral("Option%1").arg(number),
                    QStringLiteral("Option %1").arg(number),
                    QStringLiteral("None"),
                    {}};
  option.choices.append({QStringLiteral("None"), QStringLiteral("Off")});
  const int more = random.bounded(1, 5);
  for (int i = 0; i < more; ++i) option.choices.append({QStringLiteral("Choice%1").arg(i)});
  return option;
}

// Never the default: what a printer has set by itself goes together.
QString anotherChoice(QRandomGenerator &random, const OptionText &option) {
  QStringList others;
  for (const ChoiceText &choice : option.choices) {
    if (choice.keyword != option.defaultChoice) others << choice.keyword;
  }
  return others.at(random.bounded(int(others.size())));
}

QString side(QRandomGenerator &random, const OptionText &option) {
  const bool any = random.bounded(8) == 0 && option.defaultChoice == QStringLiteral("None");
  return u'*' + option.keyword + (any ? QString() : u' ' + anotherChoice(random, option));
}

void addConstraint(QRandomGenerator &random, const QList<OptionText> &options, bool newForm,
                   PPDText *text) {
  const OptionText &one = options.at(random.bounded(int(options.size())));
  const OptionText &other = options.at(random.bounded(int(options.size())));
  if (one.keyword == other.keyword) return;
  const QString first = side(random, one);
  const QString second = side(random, other);
  if (newForm) {
    text->line(QStringLiteral("*cupsUIConstraints: \"%1 %2\"").arg(first, second));
  } else {
    text->line(QStringLiteral("*UIConstraints: %1 %2").arg(first, second));
    text->line(QStringLiteral("*UIConstraints: %1 %2").arg(second, first));
  }
}

}  // namespace

QByteArray randomPpd(QRandomGenerator &random) {
  PPDText text;
  if (random.bounded(2) == 0) {
    text.attribute(QStringLiteral("OVKHasBooklet"), QStringLiteral("True"));
  }
  QList<OptionText> options;
  for (const OptionText &known : knownOptions()) {
    if (random.bounded(4) != 0) options.append(known);
  }
  const int unknown = random.bounded(2, 12);
  for (int i = 0; i < unknown; ++i) options.append(unknownOption(random, i));
  for (const OptionText &option : options) text.option(option);
  const bool newForm = random.bounded(2) == 0;
  const int constraints = random.bounded(24);
  for (int i = 0; i < constraints; ++i) addConstraint(random, options, newForm, &text);
  return text.text();
}

}  // namespace orvek::test
