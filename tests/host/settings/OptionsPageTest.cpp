// SPDX-License-Identifier: Apache-2.0
// The page of all other options under a user's hands, on small printers and on a very large one.

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "tests/host/settings/LargePpd.h"
#include "tests/host/settings/OptionsPageKit.h"

namespace orvek::test {
namespace {

const QStringList panelKeys{"OVKStapling", "OVKFolding", "OVKPunching", "OutputBin", "OVKJog"};
constexpr int manyOptions = 5000;
constexpr int limitMilliseconds = 1000;  // far above what it takes; a list of widgets fails

class OptionsPageTest : public OptionsPageOnPpd {
 protected:
  void open(const QString &ppd, SessionSetup setup = {}) {
    OptionsPageOnPpd::open(ppd, panelKeys, std::move(setup));
  }

  void SetUp() override { open(orvekPpd("6180")); }

  QStringList shownOptions() {
    QStringList all;
    for (int group = 0; group < view->model()->rowCount(); ++group) {
      const QModelIndex parent = view->model()->index(group, 0);
      for (int i = 0; i < view->model()->rowCount(parent); ++i) {
        all << view->model()->index(i, 0, parent).data().toString();
      }
    }
    return all;
  }
};

TEST_F(OptionsPageTest, HasWhatNoOtherPageHas) {
  EXPECT_THAT(
      shownOptions(),
      testing::ElementsAre(QString("Image smoothing"), QString("Toner saving"), QString("Finisher"),
                           QString("Offset tray"), QString("Punch unit"), QString("Paper trays")));
}

TEST_F(OptionsPageTest, GroupsAsThePpdDoesWithInstalledEquipmentOfItsOwn) {
  EXPECT_EQ(view->model()->rowCount(), 2);
  EXPECT_EQ(view->model()->index(0, 0).data(), "Print quality");
  EXPECT_EQ(view->model()->index(1, 0).data(), "Installed equipment");
  EXPECT_TRUE(view->isExpanded(view->model()->index(0, 0)));
}

TEST_F(OptionsPageTest, PicksByMouse) {
  const QModelIndex choice = row("Paper trays").siblingAtColumn(1);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(choice).center());
  ChoiceBox *box = editor();
  ASSERT_NE(box, nullptr);
  const QModelIndex on = box->model()->index(box->findText("2 trays"), 0);
  QTest::mouseClick(box->view()->viewport(), Qt::LeftButton, {},
                    box->view()->visualRect(on).center());
  EXPECT_EQ(marked("OVKOptionTrays"), "2Trays");
  EXPECT_EQ(choiceOf("Paper trays"), "2 trays");
}

TEST_F(OptionsPageTest, PicksByKeyboardAlone) {
  view->setFocus();
  view->setCurrentIndex(row("Punch unit"));
  QTest::keyClick(view, Qt::Key_Down);
  EXPECT_EQ(view->currentIndex().siblingAtColumn(0).data(), "Paper trays");
  QTest::keyClick(view, Qt::Key_Return);
  ChoiceBox *box = editor();
  ASSERT_NE(box, nullptr);
  ASSERT_TRUE(pickText(box, "2 trays"));
  EXPECT_EQ(marked("OVKOptionTrays"), "2Trays");
  QCoreApplication::processEvents();
  EXPECT_TRUE(view->hasFocus());
}

TEST_F(OptionsPageTest, LeavesAnOptionAloneWhosePopUpIsOnlyClosed) {
  view->setFocus();
  view->setCurrentIndex(row("Paper trays"));
  QTest::keyClick(view, Qt::Key_Space);
  ChoiceBox *box = editor();
  ASSERT_NE(box, nullptr);
  QTest::keyClick(box->view(), Qt::Key_Escape);
  QTest::keyClick(box, Qt::Key_Escape);
  QCoreApplication::processEvents();
  EXPECT_EQ(marked("OVKOptionTrays"), "4Trays");
  EXPECT_TRUE(session->ticket().values().isEmpty());
}

TEST_F(OptionsPageTest, OpensAndClosesGroupsByKeyboard) {
  view->setFocus();
  const QModelIndex group = view->model()->index(0, 0);
  view->setCurrentIndex(group);
  QTest::keyClick(view, Qt::Key_Return);
  EXPECT_FALSE(view->isExpanded(group));
  QTest::keyClick(view, Qt::Key_Space);
  EXPECT_TRUE(view->isExpanded(group));
}

TEST_F(OptionsPageTest, MarksAChangedOptionAndSaysWhatItWas) {
  EXPECT_EQ(find<QLabel>("changedState")->text(), "No option changed");
  session->pick("OVKTonerSaving", "True");
  const QModelIndex option = row("Toner saving");
  EXPECT_TRUE(option.siblingAtColumn(1).data(Qt::FontRole).value<QFont>().bold());
  EXPECT_EQ(option.data(Qt::ToolTipRole).toString(), "Changed; by itself: Off");
  EXPECT_EQ(option.data(Qt::AccessibleDescriptionRole).toString(), "Changed; by itself: Off");
  EXPECT_EQ(option.data(Qt::AccessibleTextRole).toString(), "Toner saving: On");
  EXPECT_EQ(find<QLabel>("changedState")->text(), "1 option changed");
}

TEST_F(OptionsPageTest, SetsOneOptionBack) {
  session->pick("OVKTonerSaving", "True");
  session->pick("OVKImageSmoothing", "False");
  EXPECT_FALSE(find<QPushButton>("setBack")->isEnabled());
  view->setCurrentIndex(row("Toner saving"));
  ASSERT_TRUE(find<QPushButton>("setBack")->isEnabled());
  QTest::mouseClick(find<QPushButton>("setBack"), Qt::LeftButton);
  EXPECT_EQ(marked("OVKTonerSaving"), "False");
  EXPECT_EQ(marked("OVKImageSmoothing"), "False");
  EXPECT_FALSE(find<QPushButton>("setBack")->isEnabled());
  view->setFocus();
  view->setCurrentIndex(row("Image smoothing"));
  QTest::keyClick(view, Qt::Key_Delete);
  EXPECT_EQ(marked("OVKImageSmoothing"), "True");
}

TEST_F(OptionsPageTest, SetsAllBackAsOneStep) {
  session->pick("OVKTonerSaving", "True");
  session->pick("OVKImageSmoothing", "False");
  QTest::mouseClick(find<QPushButton>("setAllBack"), Qt::LeftButton);
  EXPECT_EQ(marked("OVKTonerSaving"), "False");
  EXPECT_EQ(marked("OVKImageSmoothing"), "True");
  EXPECT_FALSE(find<QPushButton>("setAllBack")->isEnabled());
  session->undo();
  EXPECT_EQ(marked("OVKTonerSaving"), "True");
  EXPECT_EQ(marked("OVKImageSmoothing"), "False");
}

TEST_F(OptionsPageTest, SetsBackToWhatTheQueueDoesByItself) {
  SessionSetup setup;
  setup.queueOptions = {{"ovktonersaving", "true"}};
  open(orvekPpd("6180"), setup);
  EXPECT_EQ(find<QLabel>("changedState")->text(), "No option changed");
  session->pick("OVKTonerSaving", "False");
  view->setCurrentIndex(row("Toner saving"));
  QTest::mouseClick(find<QPushButton>("setBack"), Qt::LeftButton);
  EXPECT_EQ(marked("OVKTonerSaving"), "True");
}

TEST_F(OptionsPageTest, FindsByTextKeywordChoiceAndGroup) {
  auto *search = find<QLineEdit>("search");
  QTest::keyClicks(search, "toner");
  EXPECT_EQ(shownOptions(), QStringList{"Toner saving"});
  search->clear();
  QTest::keyClicks(search, "OVKOptionTrays");
  EXPECT_EQ(shownOptions(), QStringList{"Paper trays"});
  search->clear();
  QTest::keyClicks(search, "4 trays");
  EXPECT_EQ(shownOptions(), QStringList{"Paper trays"});
  search->clear();
  QTest::keyClicks(search, "print quality");
  EXPECT_EQ(shownOptions(), (QStringList{"Image smoothing", "Toner saving"}));
  search->clear();
  QTest::keyClicks(search, "zzz");
  EXPECT_EQ(shownOptions(), QStringList());
  EXPECT_EQ(find<QLabel>("changedState")->text(), "No option found");
}

TEST_F(OptionsPageTest, ShowsOnlyChangedOptionsAndKeepsThemUnderTheHand) {
  session->pick("OVKTonerSaving", "True");
  QTest::mouseClick(find<QCheckBox>("onlyChanged"), Qt::LeftButton, {}, {5, 5});
  EXPECT_EQ(shownOptions(), QStringList{"Toner saving"});
  session->pick("OVKTonerSaving", "False");
  EXPECT_EQ(shownOptions(), QStringList{"Toner saving"});
}

TEST_F(OptionsPageTest, GreysWhatCanNotBeUsedAndSaysWhy) {
  session->pick("OVKPunching", "2Hole");
  view->setCurrentIndex(row("Punch unit"));
  view->setFocus();
  QTest::keyClick(view, Qt::Key_F2);
  ChoiceBox *box = editor();
  ASSERT_NE(box, nullptr);
  const QModelIndex us = box->model()->index(box->findText("US (2 and 3 holes)"), 0);
  const QModelIndex shown = us.isValid() ? us : box->model()->index(1, 0);
  EXPECT_EQ(shown.data(Qt::ToolTipRole).toString().left(20), "not with 2 holes (me");
}

TEST_F(OptionsPageTest, NamesItsControls) {
  for (const char *name : {"search", "options"}) {
    EXPECT_FALSE(find<QWidget>(name)->accessibleName().isEmpty()) << name;
  }
}

TEST_F(OptionsPageTest, SaysThatThereIsNothingMore) {
  open(QString());
  EXPECT_EQ(shownOptions(), QStringList());
  EXPECT_EQ(find<QLabel>("changedState")->text(), "This printer has no more options");
}

TEST_F(OptionsPageTest, OpensSearchesAndFollowsQuicklyWithThousandsOfOptions) {
  const LargePpd ppd(manyOptions);
  session.reset();
  session = beginSession(ppd.path());
  QElapsedTimer clock;
  clock.start();
  page = std::make_unique<OptionsPage>(*session, panelKeys);
  page->resize(600, 450);
  page->show();
  QCoreApplication::processEvents();
  const qint64 opened = clock.restart();
  view = page->findChild<QTreeView *>("options");
  EXPECT_EQ(shownOptions().size(), manyOptions);
  const QString letters = QStringLiteral("Option 4321");
  clock.restart();
  QTest::keyClicks(find<QLineEdit>("search"), letters);
  QCoreApplication::processEvents();
  const qint64 searched = clock.restart();
  EXPECT_EQ(shownOptions(), QStringList{letters});
  session->pick("Option4321", "Two");
  QCoreApplication::processEvents();
  const qint64 picked = clock.elapsed();
  EXPECT_EQ(choiceOf("Option 4321"), "Second");
  RecordProperty("openedMilliseconds", static_cast<int>(opened));
  RecordProperty("searchedMilliseconds", static_cast<int>(searched));
  RecordProperty("pickedMilliseconds", static_cast<int>(picked));
  EXPECT_LT(opened, limitMilliseconds);
  EXPECT_LT(searched / letters.size(), limitMilliseconds);
  EXPECT_LT(picked, limitMilliseconds);
}

TEST_F(OptionsPageTest, SwitchesWithABoxByMouseAndKeyboard) {
  const QModelIndex choice = row("Toner saving").siblingAtColumn(1);
  ASSERT_EQ(choice.data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
  const QRect cell = view->visualRect(choice);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, {cell.left() + 10, cell.center().y()});
  EXPECT_EQ(marked("OVKTonerSaving"), "True");
  EXPECT_EQ(choice.data(Qt::CheckStateRole).toInt(), Qt::Checked);
  view->setFocus();
  QTest::keyClick(view, Qt::Key_Space);
  EXPECT_EQ(marked("OVKTonerSaving"), "False");
  QTest::keyClick(view, Qt::Key_Return);
  EXPECT_EQ(marked("OVKTonerSaving"), "True");
  EXPECT_EQ(view->findChild<ChoiceBox *>(), nullptr);
}

}  // namespace
}  // namespace orvek::test
