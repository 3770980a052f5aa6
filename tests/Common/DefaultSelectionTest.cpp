// SPDX-License-Identifier: Apache-2.0
// The default choice, matched by keyword and selected by title.

#include <gtest/gtest.h>

#include <QComboBox>
#include <memory>
#include <vector>

#include "Common/DefaultSelection.h"

namespace {

struct Choice {
  QString keyword;
  QString title;
  QString ppdTitle() const { return keyword; }
  QString userTitle() const { return title; }
};
using Choices = std::vector<std::shared_ptr<Choice>>;

Choices someChoices() {
  Choices choices;
  for (const char *text : {"None", "Front", "Rear"}) {
    const QString keyword = QLatin1String(text);
    choices.push_back(std::make_shared<Choice>(Choice{keyword, keyword + QLatin1String(" title")}));
  }
  return choices;
}

void fill(QComboBox *popUp, const Choices &choices) {
  for (const auto &choice : choices) orvek::addItem(popUp, {choice->title, nullptr, {}});
}

TEST(DefaultSelection, SelectsTheItemOfTheDefaultChoice) {
  QComboBox popUp;
  const Choices choices = someChoices();
  fill(&popUp, choices);
  setDefault(QStringLiteral("Rear"), choices, &popUp);
  EXPECT_EQ(popUp.currentIndex(), 2);
}

TEST(DefaultSelection, SelectsTheFirstItemWithATitleThatTwoChoicesShare) {
  QComboBox popUp;
  Choices choices = someChoices();
  choices[2]->title = choices[1]->title;
  fill(&popUp, choices);
  setDefault(QStringLiteral("Rear"), choices, &popUp);
  EXPECT_EQ(popUp.currentIndex(), 1);
}

TEST(DefaultSelection, LeavesTheSelectionWhereNoKeywordMatches) {
  QComboBox popUp;
  const Choices choices = someChoices();
  fill(&popUp, choices);
  popUp.setCurrentIndex(1);
  setDefault(QStringLiteral("rear"), choices, &popUp);
  EXPECT_EQ(popUp.currentIndex(), 1);
}

TEST(DefaultSelection, StopsAtTheFirstMatchEvenIfItsTitleIsNotInTheMenu) {
  QComboBox popUp;
  Choices choices = someChoices();
  fill(&popUp, choices);
  choices.insert(choices.begin(), std::make_shared<Choice>(Choice{QStringLiteral("Rear"), {}}));
  setDefault(QStringLiteral("Rear"), choices, &popUp);
  EXPECT_EQ(popUp.currentIndex(), 0);
}

TEST(DefaultSelection, DoesNothingForAnEmptyListOrWithoutAMenu) {
  QComboBox popUp;
  fill(&popUp, someChoices());
  popUp.setCurrentIndex(1);
  setDefault(QStringLiteral("Rear"), Choices{}, &popUp);
  setDefault(QStringLiteral("Rear"), Choices{nullptr}, &popUp);
  setDefault(QStringLiteral("Rear"), someChoices(), nullptr);
  EXPECT_EQ(popUp.currentIndex(), 1);
}

}  // namespace
