// SPDX-License-Identifier: Apache-2.0
// Numbers typed into the panel: what it understood is shown at once, and said where it is not what
// was typed.

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QSpinBox>

#include "host/preview/JobPreview.h"
#include "tests/host/dialog/DialogKit.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class Understood : public DialogTest {
 protected:
  void SetUp() override {
    open();
    click("bookletChckBox");
  }

  void type(const char *name, const QString &text) const {
    auto *field = find<QLineEdit>(name);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, text);
    QCoreApplication::processEvents();
  }

  /// Null while nothing is said.
  QString note() const {
    const auto *label = find<QLabel>("understoodNote");
    return label->isVisible() ? label->text() : QString();
  }

  int slider(const char *name) const { return find<QSlider>(name)->value(); }
  QString ticket(const char *key) const {
    return session->ticket().value(QLatin1String(key)).toString();
  }
};

TEST_F(Understood, IsSaidBesideAFieldWhereADecimalWasPassedOver) {
  type("gutterTxtBox", QStringLiteral("12"));
  EXPECT_EQ(note(), QString());
  type("gutterTxtBox", QStringLiteral("12.7"));
  EXPECT_EQ(note(), QStringLiteral("“12.7” was read as 127"));
  EXPECT_EQ(slider("gutterSlider"), 127);
  EXPECT_EQ(ticket("OVKGutter"), "127");
  const auto *label = find<QLabel>("understoodNote");
  EXPECT_TRUE(label->parentWidget()->rect().contains(label->geometry()));
}

TEST_F(Understood, IsSaidOfLettersAndOfNumbersOutOfRange) {
  type("creepTxtBox", QStringLiteral("abc"));
  EXPECT_EQ(note(), QStringLiteral("“abc” was read as 0"));
  EXPECT_EQ(slider("creepSlider"), 0);
  type("gutterTxtBox", QStringLiteral("200"));
  EXPECT_EQ(note(), QStringLiteral("“200” was read as 144"));
  EXPECT_EQ(slider("gutterSlider"), 144);
}

TEST_F(Understood, IsShownByThePreviewAtOnce) {
  auto *preview = dialog->findChild<JobPreview *>();
  ASSERT_TRUE(QTest::qWaitFor(
      [&] { return preview->isComplete() && preview->sides().front().pages.size() == 2; },
      jobTimeout));
  const auto width = [&] { return preview->sides().front().pages.front().frame.width; };
  const double usual = width();
  type("gutterTxtBox", QStringLiteral("12.7"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return width() < usual; }));
}

TEST_F(Understood, SaysWhichNumberAppliesWhileThereIsNone) {
  auto *field = find<QLineEdit>("gutterTxtBox");
  type("gutterTxtBox", QStringLiteral("30"));
  field->selectAll();
  QTest::keyClick(field, Qt::Key_Delete);
  QCoreApplication::processEvents();
  EXPECT_EQ(note(), "30 still applies");
  EXPECT_EQ(ticket("OVKGutter"), "30");
  QTest::keyClicks(field, QStringLiteral("4"));
  EXPECT_EQ(note(), QString());
}

TEST_F(Understood, IsNoLongerSaidWhenTheKeyboardHasLeft) {
  type("gutterTxtBox", QStringLiteral("9x"));
  EXPECT_EQ(note(), QStringLiteral("“9x” was read as 9"));
  QTest::keyClick(find<QLineEdit>("gutterTxtBox"), Qt::Key_Tab);
  EXPECT_EQ(note(), QString());
}

class Copies : public DialogTest {
 protected:
  void SetUp() override {
    open();
    field = find<QSpinBox>("copies");
    field->setFocus();
    field->selectAll();
  }

  /// Null while nothing is said.
  QString note() const {
    const auto *label = find<QLabel>("copiesNote");
    return label != nullptr && label->isVisible() ? label->text() : QString();
  }

  QSpinBox *field = nullptr;
};

TEST_F(Copies, SayWhatIsTakenOfMoreThanThereMayBe) {
  QTest::keyClicks(field, QStringLiteral("9999"));
  EXPECT_EQ(note(), QString());
  QTest::keyClicks(field, QStringLiteral("99999999"));
  EXPECT_EQ(note(), QStringLiteral("From 1 to 9999; 9999 applies"));
  EXPECT_EQ(session->job().settings().copies, 9999);
  const auto *label = find<QLabel>("copiesNote");
  ASSERT_NE(label, nullptr);
  EXPECT_TRUE(label->parentWidget()->rect().contains(label->geometry()));
  QTest::keyClick(field, Qt::Key_Backspace);
  EXPECT_EQ(note(), QString());
  EXPECT_EQ(session->job().settings().copies, 999);
}

TEST_F(Copies, SayThatAPastedTextWasNotTaken) {
  QTest::keyClicks(field, QStringLiteral("12"));
  field->selectAll();
  QGuiApplication::clipboard()->setText(QStringLiteral("999999999999"));
  QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(note(), QStringLiteral("From 1 to 9999; 12 applies"));
  EXPECT_EQ(session->job().settings().copies, 12);
}

TEST_F(Copies, SayWhichNumberAppliesWhileThereIsNone) {
  QTest::keyClicks(field, QStringLiteral("30"));
  field->selectAll();
  QTest::keyClick(field, Qt::Key_Delete);
  EXPECT_EQ(note(), QStringLiteral("30 still applies"));
  EXPECT_EQ(session->job().settings().copies, 30);
  QTest::keyClick(field, Qt::Key_Tab);
  EXPECT_EQ(note(), QString());
  EXPECT_EQ(field->text(), QStringLiteral("30"));
}

TEST_F(Copies, SayNothingMoreWhenAnotherNumberComesByItself) {
  QTest::keyClicks(field, QStringLiteral("7x"));
  EXPECT_EQ(note(), QStringLiteral("From 1 to 9999; 7 applies"));
  session->undo();
  EXPECT_EQ(field->value(), 1);
  EXPECT_EQ(note(), QString());
}

}  // namespace
