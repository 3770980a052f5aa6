// SPDX-License-Identifier: Apache-2.0
// Trace lines as the general log gets them.

#include "Common/PDELogging.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "platform/system/Log.h"
#include "platform/system/PDEObject.h"

namespace {

class Described : public PDEObject {
 public:
  explicit Described(const char *text) : m_text(QString::fromUtf8(text)) {}
  QString description() const override { return m_text; }

 private:
  QString m_text;
};

class TraceLine : public testing::Test {
 protected:
  TraceLine() {
    orvek::setLogListener([this](const QString &line) { lines.append(line); });
  }
  ~TraceLine() override { orvek::setLogListener({}); }

  std::string last() const { return lines.isEmpty() ? "" : lines.last().toStdString(); }

  QStringList lines;
};

TEST_F(TraceLine, NamesTheObjectBetweenTagAndMessage) {
  const Described panel("<panel>");
  _PDEProlog(&panel, "opening %s, try %d", "view", 2);
  EXPECT_EQ(last(), "BEGIN self(<panel>) opening view, try 2");
  _PDEEpilog(&panel, "done");
  EXPECT_EQ(last(), "END self(<panel>) done");
  _PDELog(&panel, "half of it");
  EXPECT_EQ(last(), "LOG self(<panel>) half of it");
  EXPECT_EQ(lines.size(), 3);
}

TEST_F(TraceLine, LeavesTheObjectsPartOutForANullObject) {
  _PDELog(nullptr, "message %c", 'x');
  EXPECT_EQ(last(), "LOG message x");
  _PDEProlog(nullptr, "a");
  EXPECT_EQ(last(), "BEGIN a");
  _PDEEpilog(nullptr, "b");
  EXPECT_EQ(last(), "END b");
}

TEST_F(TraceLine, ShowsObjectsAmongTheArguments) {
  const Described choice("Saddle");
  _PDELog(nullptr, "picked %@, not %@", &choice, static_cast<const PDEObject *>(nullptr));
  EXPECT_EQ(last(), "LOG picked Saddle, not (null)");
}

TEST_F(TraceLine, TakesAPercentInTheDescriptionForPartOfTheFormat) {
  const Described half("50%% of %d");
  _PDELog(&half, "%d and %d", 7, 8);
  EXPECT_EQ(last(), "LOG self(50% of 7) 8 and %d");
}

TEST_F(TraceLine, SpendsNoArgumentThatTheCallerDidNotPass) {
  const Described hostile("%s %s %n %*d %@");
  _PDELog(&hostile, "plain");
  EXPECT_EQ(last(), "LOG self(%s %s %n %*d %@) plain");
  _PDELog(&hostile, "%d", 3);
  EXPECT_EQ(last(), "LOG self(%s %s %n %*d %@) 3");
}

TEST_F(TraceLine, TakesANullFormatForAnEmptyOne) {
  _PDELog(nullptr, nullptr);
  EXPECT_EQ(last(), "LOG ");
}

}  // namespace
