// SPDX-License-Identifier: Apache-2.0
// Reading the words of an action.

#include "host/cli/Action.h"

#include <gmock/gmock.h>

namespace orvek::test {
namespace {

TEST(Action, IsAControlsNameAndWhatToPutIntoIt) {
  const auto action = parseAction("staplingPopup=#2");
  ASSERT_TRUE(action.ok());
  EXPECT_EQ(action.value().kind, Action::Kind::Control);
  EXPECT_EQ(action.value().control, "staplingPopup");
  EXPECT_EQ(action.value().value, "#2");
}

TEST(Action, KeepsEqualsSignsAndEmptinessOfTheValue) {
  EXPECT_EQ(parseAction("gutterTxtBox=a=b").value().value, "a=b");
  EXPECT_EQ(parseAction("gutterTxtBox=").value().value, "");
}

TEST(Action, KnowsTheHostsOwnCalls) {
  EXPECT_EQ(parseAction("view").value().kind, Action::Kind::View);
  EXPECT_EQ(parseAction("restore").value().kind, Action::Kind::Restore);
  EXPECT_EQ(parseAction("save").value().kind, Action::Kind::Save);
  EXPECT_EQ(parseAction("willShow").value().kind, Action::Kind::WillShow);
  EXPECT_EQ(parseAction("reopen").value().kind, Action::Kind::Reopen);
}

TEST(Action, TakesALayoutAsAnInteger) {
  EXPECT_EQ(parseAction("nup=4").value().number, 4);
  EXPECT_EQ(parseAction("nup=-1").value().number, -1);
  EXPECT_EQ(parseAction("nup=4").value().kind, Action::Kind::PagesPerSheet);
}

TEST(Action, TakesTheNearestNumberForOneBeyond32Bits) {
  EXPECT_EQ(parseAction("nup=99999999999").value().number, 2147483647);
  EXPECT_EQ(integerIn("-99999999999"), std::optional<int>(-2147483648));
  EXPECT_EQ(integerIn("+7"), std::optional<int>(7));
  EXPECT_EQ(integerIn(" 7"), std::nullopt);
  EXPECT_EQ(integerIn(""), std::nullopt);
}

TEST(Action, IsRefusedWithItsOwnWordsWhenItIsNone) {
  for (const char *text :
       {"", "fly", "Restore", "nup=", "nup=four", "nup=1.5", "nup= 2", "nup=--2", "nup=-"}) {
    const auto action = parseAction(QString::fromLatin1(text));
    ASSERT_FALSE(action.ok()) << text;
    EXPECT_EQ(action.failure().kind, FailureKind::Usage);
    EXPECT_EQ(action.failure().what, "--do " + QString::fromLatin1(text));
  }
}

}  // namespace
}  // namespace orvek::test
