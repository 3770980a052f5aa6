// SPDX-License-Identifier: Apache-2.0
// The general log: what its listener hears and what stands on standard error.

#include "platform/system/Log.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QRegularExpression>
#include <optional>
#include <utility>

#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

QString standardErrorOf(const QString &line) {
  testing::internal::CaptureStderr();
  logLine(line);
  return QString::fromStdString(testing::internal::GetCapturedStderr());
}

TEST(Log, LetsAListenerHearEachLineAsItWasGiven) {
  const LogCapture log;
  logLine(QStringLiteral("first\n"));
  logLine(QStringLiteral("second"));
  EXPECT_EQ(log.lines(), QStringList({"first\n", "second"}));
}

TEST(Log, PutsWhatItIsGivenOnOneLineThatMovesNoCursor) {
  const QString said = standardErrorOf(QStringLiteral("A\x1b[2J\nforged\rB\n"));
  EXPECT_TRUE(said.endsWith(QStringLiteral("] A [2J forged B\n"))) << said.toStdString();
  EXPECT_EQ(said.count(u'\n'), 1);
}

TEST(Log, EndsAListenerThatAnEmptyOneReplaces) {
  int heard = 0;
  setLogListener([&heard](const QString &) { ++heard; });
  setLogListener({});
  logLine(QStringLiteral("unheard"));
  EXPECT_EQ(heard, 0);
}

TEST(Log, HasOneListenerAtATime) {
  int first = 0;
  int second = 0;
  setLogListener([&first](const QString &) { ++first; });
  setLogListener([&second](const QString &) { ++second; });
  logLine(QStringLiteral("heard once"));
  setLogListener({});
  EXPECT_EQ(first, 0);
  EXPECT_EQ(second, 1);
}

TEST(Log, LetsManyListenAndEachEndWithItsOwner) {
  QStringList heard;
  const auto hearing = [&heard](const char *who) {
    return [&heard, who](const QString &line) { heard << QLatin1String(who) + line; };
  };
  const LogSubscription first(hearing("first "));
  std::optional<LogSubscription> second(std::in_place, hearing("second "));
  const LogSubscription third(hearing("third "));
  second.reset();
  logLine(QStringLiteral("a"));
  EXPECT_EQ(heard, QStringList({"first a", "third a"}));
}

TEST(Log, KeepsSubscriptionsApartFromTheOneListener) {
  QStringList heard;
  const LogSubscription subscription([&heard](const QString &line) { heard << line; });
  setLogListener([&heard](const QString &line) { heard << line; });
  logLine(QStringLiteral("twice"));
  setLogListener({});
  logLine(QStringLiteral("once"));
  EXPECT_EQ(heard, QStringList({"twice", "twice", "once"}));
}

TEST(Log, LetsASubscriptionEndWhileItIsCalled) {
  int heard = 0;
  int heardByTheOther = 0;
  std::optional<LogSubscription> ending;
  ending.emplace([&](const QString &) {
    ending.reset();
    ++heard;
  });
  const LogSubscription other([&](const QString &) { ++heardByTheOther; });
  logLine(QStringLiteral("heard"));
  logLine(QStringLiteral("unheard"));
  EXPECT_EQ(heard, 1);
  EXPECT_EQ(heardByTheOther, 2);
}

TEST(Log, PassesOverAnEmptySubscription) {
  const LogSubscription nobody{LogListener()};
  logLine(QStringLiteral("into the void"));
}

TEST(Log, LetsAListenerEndItself) {
  QString kept(1000, u'x');
  int heard = 0;
  setLogListener([kept, &heard](const QString &) {
    setLogListener({});
    heard += kept.startsWith(u'x') ? 1 : 0;
  });
  logLine(QStringLiteral("heard"));
  logLine(QStringLiteral("unheard"));
  EXPECT_EQ(heard, 1);
}

TEST(Log, WritesTimeAndProcessBeforeTheTextOnStandardError) {
  const QString line = standardErrorOf(QStringLiteral("a text"));
  const QRegularExpression shape(
      QStringLiteral(R"(^\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3} test-platform\[%1\] a text\n$)")
          .arg(getpid()));
  EXPECT_TRUE(shape.match(line).hasMatch()) << line.toStdString();
}

TEST(Log, DoesNotDoubleTheLineFeedThatEndsAText) {
  EXPECT_TRUE(standardErrorOf(QStringLiteral("text\n")).endsWith(QLatin1String("] text\n")));
  EXPECT_FALSE(standardErrorOf(QStringLiteral("text\n")).endsWith(QLatin1String("\n\n")));
}

TEST(Log, ExpandsNoConversionInTheText) {
  EXPECT_TRUE(
      standardErrorOf(QStringLiteral("100 %s %n %@")).endsWith(QLatin1String("%s %n %@\n")));
}

TEST(Log, KeepsTextOfEveryLanguage) {
  EXPECT_TRUE(standardErrorOf(QStringLiteral("Größe 折り")).contains(QStringLiteral("Größe 折り")));
}

TEST(Log, TakesAnEmptyAndANullText) {
  const LogCapture log;
  logLine(QStringLiteral(""));
  logLine(QString());
  ASSERT_EQ(log.lines().size(), 2);
  EXPECT_TRUE(log.lines()[0].isEmpty());
  EXPECT_TRUE(log.lines()[1].isEmpty());
}

}  // namespace
}  // namespace orvek::test
