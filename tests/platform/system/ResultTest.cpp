// SPDX-License-Identifier: Apache-2.0
// Errors as values.

#include "platform/system/Result.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

const Failure unreadable{FailureKind::Io, QStringLiteral("a.ppd"), QStringLiteral("can't be read")};

TEST(Result, HoldsAValue) {
  const Result<int> result = 7;
  EXPECT_TRUE(result.ok());
  EXPECT_TRUE(static_cast<bool>(result));
  EXPECT_EQ(result.value(), 7);
}

TEST(Result, HoldsAFailureInstead) {
  const Result<int> result = unreadable;
  EXPECT_FALSE(result.ok());
  EXPECT_FALSE(static_cast<bool>(result));
  EXPECT_EQ(result.failure().kind, FailureKind::Io);
}

TEST(Result, GivesAwayAValueThatCannotBeCopied) {
  Result<std::unique_ptr<int>> result = std::make_unique<int>(7);
  const std::unique_ptr<int> taken = result.take();
  EXPECT_EQ(*taken, 7);
}

TEST(Result, TellsAValueFromAFailureOfTheSameText) {
  const Result<QString> value = QStringLiteral("a.ppd");
  const Result<QString> failure = unreadable;
  EXPECT_TRUE(value.ok());
  EXPECT_FALSE(failure.ok());
}

TEST(Status, IsSuccessUnlessAFailureIsGiven) {
  EXPECT_TRUE(Status().ok());
  const Status failed = unreadable;
  EXPECT_FALSE(failed.ok());
  EXPECT_EQ(failed.failure().what, QStringLiteral("a.ppd"));
}

TEST(Failure, SaysWhatAndWhyInOneLine) {
  EXPECT_EQ(unreadable.line(), QStringLiteral("a.ppd: can't be read"));
}

TEST(FailureKind, CarriesTheExitStatusesThatScriptsRelyOn) {
  EXPECT_EQ(exitStatusOf(FailureKind::Io), 1);
  EXPECT_EQ(exitStatusOf(FailureKind::Usage), 2);
  EXPECT_EQ(exitStatusOf(FailureKind::Invalid), 3);
  EXPECT_EQ(exitStatusOf(FailureKind::Cancelled), 1);
}

TEST(Phrase, IsTheSentenceWithItsPartsInIt) {
  const Phrase phrase("%2 lacks %1, and %1 costs 100%", {QStringLiteral("a"), QStringLiteral("b")});
  EXPECT_EQ(phrase, QStringLiteral("b lacks a, and a costs 100%"));
  EXPECT_EQ(phrase.sentence(), "%2 lacks %1, and %1 costs 100%");
  EXPECT_EQ(phrase.parts().size(), 2U);
}

TEST(Phrase, TakesNoPlaceInAPartForItsOwn) {
  const Phrase phrase("%1 and %2", {QStringLiteral("%2"), QStringLiteral("b")});
  EXPECT_EQ(phrase, QStringLiteral("%2 and b"));
}

TEST(Phrase, HasNoSentenceWhereTheTextWasGivenAsAWhole) {
  EXPECT_TRUE(Phrase(QStringLiteral("a.ppd")).sentence().isNull());
}

}  // namespace
}  // namespace orvek::test
