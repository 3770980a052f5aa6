// SPDX-License-Identifier: Apache-2.0
// Letters for controls that nobody chose letters for.

#include "host/settings/Mnemonics.h"

#include <gtest/gtest.h>

#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QTabWidget>
#include <QVBoxLayout>

#include "host/settings/LabelText.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

class MnemonicsTest : public testing::Test {
 protected:
  QLabel *label(const QString &text) {
    auto *made = new QLabel(text, &page);
    made->setBuddy(new QWidget(&page));
    return made;
  }

  QWidget page;
};

TEST_F(MnemonicsTest, TakeTheFirstFreeLetterOfAWord) {
  QLabel *size = label("Paper size");
  QLabel *source = label("Paper source");
  QLabel *type = label("Paper type");
  assignMnemonics(&page);
  EXPECT_EQ(size->text(), "&Paper size");
  EXPECT_EQ(source->text(), "Paper &source");
  EXPECT_EQ(type->text(), "Paper &type");
}

TEST_F(MnemonicsTest, TakeAnyLetterWhereNoWordBeginsWithAFreeOne) {
  label("A");
  QLabel *second = label("Ab");
  assignMnemonics(&page);
  EXPECT_EQ(second->text(), "A&b");
}

TEST_F(MnemonicsTest, MoveOnWhereAnotherTextHasNoOtherLetter) {
  QLabel *tray = label("Tray");
  QLabel *tea = label("T");
  assignMnemonics(&page);
  EXPECT_EQ(tea->text(), "&T");
  EXPECT_EQ(tray->text(), "T&ray");
}

TEST_F(MnemonicsTest, StandInBracketsBehindTextsWithoutLatinLetters) {
  QLabel *size = label(QStringLiteral("用紙サイズ"));
  assignMnemonics(&page);
  EXPECT_EQ(size->text(), QStringLiteral("用紙サイズ (&A)"));
  assignMnemonics(&page);
  EXPECT_EQ(size->text(), QStringLiteral("用紙サイズ (&A)"));
}

TEST_F(MnemonicsTest, StandBeforeTheColonOfALabel) {
  QLabel *size = label(QStringLiteral("用紙サイズ:"));
  QLabel *paper = label(QStringLiteral("纸张尺寸："));
  QLabel *spaced = label(QStringLiteral("Размер\u00a0:"));
  QLabel *latin = label(QStringLiteral("Quality:"));
  for (int call = 0; call < 2; ++call) {
    assignMnemonics(&page);
    EXPECT_EQ(size->text(), QStringLiteral("用紙サイズ (&A):"));
    EXPECT_EQ(paper->text(), QStringLiteral("纸张尺寸 (&B)："));
    EXPECT_EQ(spaced->text(), QStringLiteral("Размер (&C)\u00a0:"));
    EXPECT_EQ(latin->text(), "&Quality:");
  }
}

TEST_F(MnemonicsTest, KeepsAmpersandsOfTheText) {
  QLabel *text = label(withoutMnemonic("R&D paper"));
  assignMnemonics(&page);
  EXPECT_EQ(text->text(), "&R&&D paper");
}

TEST(Mnemonics, AvoidTheLettersOfTheWindowAround) {
  QWidget window;
  auto *print = new QPushButton("&Print", &window);
  auto *tabs = new QTabWidget(&window);
  auto *page = new QWidget;
  tabs->addTab(page, "&General");
  auto *column = new QVBoxLayout(&window);
  column->addWidget(print);
  column->addWidget(tabs);
  auto *inside = new QPushButton("Page grid", page);
  window.show();
  assignMnemonics(page);
  EXPECT_EQ(inside->text(), "P&age grid");
}

TEST_F(MnemonicsTest, NeverCollideAndNeverStandBehindALatinText) {
  for (int i = 0; i < 30; ++i) label("Same");
  assignMnemonics(&page);
  QSet<QString> seen;
  for (const QLabel *each : page.findChildren<QLabel *>()) {
    EXPECT_FALSE(each->text().contains(QLatin1Char('('))) << each->text().toStdString();
    const QString letter = QKeySequence::mnemonic(each->text()).toString();
    if (letter.isEmpty()) continue;
    EXPECT_FALSE(seen.contains(letter)) << letter.toStdString();
    seen.insert(letter);
  }
  EXPECT_EQ(seen.size(), 4);
}

TEST(LabelText, EndsWithOneColonWhateverTheNameBrings) {
  EXPECT_EQ(labelText("Paper size"), "Paper size:");
  EXPECT_EQ(labelText("R&D paper:"), "R&&D paper:");
  EXPECT_EQ(labelText(QStringLiteral("纸张尺寸：")), QStringLiteral("纸张尺寸:"));
}

}  // namespace
}  // namespace orvek::test
