// SPDX-License-Identifier: Apache-2.0
// Choice records, on records of libcups' own types: some of these no PPD file can express.

#include "panel/PDEChoice.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <array>
#include <cstring>

namespace {

// An option with its choices, linked as libcups links them.
struct HandBuiltOption {
  explicit HandBuiltOption(std::initializer_list<const char *> keywords) {
    for (const char *keyword : keywords) {
      ppd_choice_t &made = choices[std::size_t(option.num_choices++)];
      qstrncpy(made.choice, keyword, sizeof made.choice);
      qstrncpy(made.text, keyword, sizeof made.text);
      made.option = &option;
    }
    option.choices = choices.data();
  }
  ppd_choice_t *choice(std::size_t index) { return &choices[index]; }

  std::array<ppd_choice_t, 4> choices{};
  ppd_option_t option{};
};

TEST(PDEChoice, GivesNoUserTitleForALatin1TextTwiceInARow) {
  HandBuiltOption built{"Relie"};
  std::strcpy(built.choice(0)->text, "Reli\xE9");
  const auto record = PDEChoice::choiceWithChoice(built.choice(0));
  EXPECT_TRUE(record->userTitle().isNull());
  EXPECT_TRUE(record->userTitle().isNull());
}

TEST(PDEChoice, TriesAnAbsentTitleAgain) {
  HandBuiltOption built{"Relie"};
  std::strcpy(built.choice(0)->text, "Reli\xE9");
  const auto record = PDEChoice::choiceWithChoice(built.choice(0));
  EXPECT_TRUE(record->userTitle().isNull());
  std::strcpy(built.choice(0)->text, "Relié");
  EXPECT_EQ(record->userTitle(), QStringLiteral("Relié"));
}

TEST(PDEChoice, KeepsATitleOnceDecoded) {
  HandBuiltOption built{"Front"};
  const auto record = PDEChoice::choiceWithChoice(built.choice(0));
  EXPECT_EQ(record->userTitle(), QStringLiteral("Front"));
  EXPECT_EQ(record->ppdTitle(), QStringLiteral("Front"));
  std::strcpy(built.choice(0)->text, "Other");
  std::strcpy(built.choice(0)->choice, "Other");
  EXPECT_EQ(record->userTitle(), QStringLiteral("Front"));
  EXPECT_EQ(record->ppdTitle(), QStringLiteral("Front"));
}

TEST(PDEChoice, GivesAnEmptyTitleForAnEmptyText) {
  HandBuiltOption built{"Front"};
  built.choice(0)->text[0] = '\0';
  const auto record = PDEChoice::choiceWithChoice(built.choice(0));
  EXPECT_TRUE(record->userTitle().isEmpty());
  EXPECT_FALSE(record->userTitle().isNull());
}

TEST(PDEChoice, GivesNoKeywordBeyondASCII) {
  HandBuiltOption built{"Reli\xC3\xA9"};
  EXPECT_TRUE(PDEChoice::choiceWithChoice(built.choice(0))->ppdTitle().isNull());
}

TEST(PDEChoice, ReadsFieldsThatAreFullToTheLastByte) {
  HandBuiltOption built{""};
  std::memset(built.choice(0)->choice, 'k', sizeof built.choice(0)->choice);
  std::memset(built.choice(0)->text, 't', sizeof built.choice(0)->text);
  const auto record = PDEChoice::choiceWithChoice(built.choice(0));
  EXPECT_EQ(record->ppdTitle(), QString(41, QLatin1Char('k')));
  EXPECT_EQ(record->userTitle(), QString(81, QLatin1Char('t')));
}

TEST(PDEChoice, IsTheDefaultExactlyWhereTheKeywordsAreEqual) {
  HandBuiltOption built{"None", "front", "Front"};
  std::strcpy(built.option.defchoice, "Front");
  EXPECT_FALSE(PDEChoice::choiceWithChoice(built.choice(0))->isDefaultChoice());
  EXPECT_FALSE(PDEChoice::choiceWithChoice(built.choice(1))->isDefaultChoice());
  EXPECT_TRUE(PDEChoice::choiceWithChoice(built.choice(2))->isDefaultChoice());
}

TEST(PDEChoice, DescribesTheOnlyChoiceAsOneOfOne) {
  HandBuiltOption built{"None"};
  const QString text = PDEChoice::choiceWithChoice(built.choice(0))->description();
  EXPECT_TRUE(text.endsWith(
      QStringLiteral(" userTitle:\"None\" ppdTitle:\"None\" marked:NO choice:1 of 1>")))
      << text.toStdString();
}

TEST(PDEChoice, DescribesAMarkedChoiceByItsPlace) {
  HandBuiltOption built{"None", "Front", "Rear"};
  built.choice(1)->marked = 1;
  const QString text = PDEChoice::choiceWithChoice(built.choice(1))->description();
  const QRegularExpression form(QStringLiteral(
      "^<PDEChoice 0x[0-9a-f]+ userTitle:\"Front\" ppdTitle:\"Front\" marked:YES choice:2 of 3>$"));
  EXPECT_TRUE(form.match(text).hasMatch()) << text.toStdString();
}

TEST(PDEChoice, AbsentRecordsHaveNoTitles) {
  EXPECT_TRUE(orvek::userTitle(nullptr).isNull());
  EXPECT_TRUE(orvek::ppdTitle(nullptr).isNull());
  EXPECT_EQ(orvek::recordAt(nullptr, 0), nullptr);
}

}  // namespace
