// SPDX-License-Identifier: Apache-2.0
// The general page, and the strip that stands above it, under a user's hands, on the project's
// printers.

#include "host/settings/GeneralPage.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSet>
#include <QSpinBox>
#include <QVBoxLayout>

#include "host/settings/ChoiceBox.h"
#include "host/settings/JobStrip.h"
#include "tests/host/settings/SettingsKit.h"

namespace orvek::test {
namespace {

class GeneralPageTest : public testing::Test {
 protected:
  void open(const QString &ppd, SessionSetup setup = {}) {
    session = beginSession(ppd, std::move(setup));
    page = std::make_unique<QWidget>();
    auto *column = new QVBoxLayout(page.get());
    column->addWidget(new JobStrip(*session, page.get()));
    general = new GeneralPage(*session, page.get());
    column->addWidget(general);
    page->show();
    page->activateWindow();
    QCoreApplication::processEvents();
  }

  void SetUp() override { open(orvekPpd("6180")); }

  template <typename Control>
  Control *find(const char *name) {
    auto *control = page->findChild<Control *>(QLatin1String(name));
    EXPECT_NE(control, nullptr) << name;
    return control;
  }

  ChoiceBox *box(const char *name) { return find<ChoiceBox>(name); }
  QString marked(const char *option) { return session->marks().marked(QLatin1String(option)); }

  std::unique_ptr<PrintSession> session;
  std::unique_ptr<QWidget> page;
  GeneralPage *general = nullptr;
};

TEST_F(GeneralPageTest, ShowsWhatIsMarked) {
  EXPECT_EQ(box("paperSize")->currentText(), "A4");
  EXPECT_EQ(box("sides")->choice(), "None");
  EXPECT_EQ(box("color")->currentText(), "Color");
  EXPECT_EQ(find<QSpinBox>("copies")->value(), 1);
  EXPECT_TRUE(find<QRadioButton>("allPages")->isChecked());
}

TEST_F(GeneralPageTest, PicksByKeyboard) {
  ASSERT_TRUE(pickText(box("paperSize"), "A3"));
  EXPECT_EQ(marked("PageSize"), "A3");
  EXPECT_EQ(session->ticket().value("PageSize"), QVariant("A3"));
  ASSERT_TRUE(pickText(box("sides"), "Short-edge binding"));
  EXPECT_EQ(marked("Duplex"), "DuplexTumble");
}

TEST_F(GeneralPageTest, PicksByMouse) {
  ChoiceBox *color = box("color");
  color->showPopup();
  const QModelIndex gray = color->model()->index(color->findText("Black and white"), 0);
  QTest::mouseClick(color->view()->viewport(), Qt::LeftButton, {},
                    color->view()->visualRect(gray).center());
  EXPECT_EQ(marked("ColorModel"), "Gray");
}

TEST_F(GeneralPageTest, TakesCopiesAndCollation) {
  auto *copies = find<QSpinBox>("copies");
  auto *collate = find<QCheckBox>("collate");
  EXPECT_FALSE(collate->isEnabled());
  copies->setFocus();
  copies->selectAll();
  QTest::keyClicks(copies, "12");
  EXPECT_EQ(session->job().settings().copies, 12);
  ASSERT_TRUE(collate->isEnabled());
  EXPECT_TRUE(collate->isChecked());
  QTest::keyClick(collate, Qt::Key_Space);
  EXPECT_FALSE(session->job().settings().collate);
  EXPECT_EQ(marked("Collate"), "False");
  EXPECT_EQ(session->job().options().value("copies"), "12");
}

TEST_F(GeneralPageTest, TakesPageRangesAsTheyAreTyped) {
  auto *ranges = find<QLineEdit>("pageRanges");
  QTest::keyClicks(ranges, "7, 1-3");
  EXPECT_EQ(ranges->text(), "7, 1-3");
  EXPECT_TRUE(find<QRadioButton>("somePages")->isChecked());
  EXPECT_EQ(session->job().settings().pageRanges, "1-3,7");
  QTest::mouseClick(find<QRadioButton>("allPages"), Qt::LeftButton);
  EXPECT_TRUE(session->job().settings().pageRanges.isNull());
  QTest::mouseClick(find<QRadioButton>("somePages"), Qt::LeftButton);
  EXPECT_EQ(session->job().settings().pageRanges, "1-3,7");
}

TEST_F(GeneralPageTest, SaysWhatIsWrongWithARangeOnceItIsTyped) {
  auto *ranges = find<QLineEdit>("pageRanges");
  auto *problem = find<QLabel>("pageRangesProblem");
  QTest::keyClicks(ranges, "3-x");
  EXPECT_FALSE(problem->isVisible());
  QTest::keyClick(ranges, Qt::Key_Return);
  EXPECT_TRUE(problem->isVisible());
  EXPECT_TRUE(problem->text().startsWith("3-x: ")) << problem->text().toStdString();
  EXPECT_EQ(session->job().settings().pageRangesProblem, problem->text());
  EXPECT_TRUE(session->job().settings().pageRanges.isNull());
  ranges->selectAll();
  QTest::keyClicks(ranges, "3-5");
  EXPECT_FALSE(problem->isVisible());
  EXPECT_TRUE(session->job().settings().pageRangesProblem.isNull());
}

TEST_F(GeneralPageTest, StaysAtRangeWhileNothingIsTypedYet) {
  QTest::mouseClick(find<QRadioButton>("somePages"), Qt::LeftButton);
  EXPECT_TRUE(find<QRadioButton>("somePages")->isChecked());
  EXPECT_TRUE(find<QLineEdit>("pageRanges")->hasFocus());
  EXPECT_TRUE(session->job().settings().pageRanges.isNull());
}

TEST_F(GeneralPageTest, TakesOrientationOrderAndLayout) {
  ASSERT_TRUE(pickText(find<QComboBox>("orientation"), "Landscape"));
  QTest::mouseClick(find<QCheckBox>("reverse"), Qt::LeftButton, {}, {5, 5});
  ASSERT_TRUE(pickText(find<QComboBox>("pagesPerSheet"), "4"));
  EXPECT_EQ(session->job().options().value("orientation-requested"), "4");
  EXPECT_EQ(session->job().options().value("outputorder"), "reverse");
  EXPECT_EQ(session->job().options().value("number-up"), "4");
  ASSERT_TRUE(pickText(find<QComboBox>("pagesPerSheet"), "1"));
  EXPECT_EQ(session->job().pagesPerSheet(), 0);
}

TEST_F(GeneralPageTest, FollowsTheSession) {
  session->pick("PageSize", "Legal");
  JobSettings job = session->job().settings();
  job.copies = 3;
  job.pageRanges = QStringLiteral("2-4");
  session->job().setSettings(job);
  EXPECT_EQ(box("paperSize")->choice(), "Legal");
  EXPECT_EQ(find<QSpinBox>("copies")->value(), 3);
  EXPECT_EQ(find<QLineEdit>("pageRanges")->text(), "2-4");
  EXPECT_TRUE(find<QRadioButton>("somePages")->isChecked());
}

TEST_F(GeneralPageTest, LetsConstraintsHaveTheirWay) {
  session->pick("Duplex", "DuplexNoTumble");
  ASSERT_TRUE(pickText(box("paperSize"), "Envelope DL"));
  EXPECT_EQ(box("sides")->choice(), "None");
  ASSERT_EQ(session->record().notices().size(), 1);
  session->undo();
  EXPECT_EQ(box("paperSize")->choice(), "A4");
  EXPECT_EQ(box("sides")->choice(), "DuplexNoTumble");
}

TEST_F(GeneralPageTest, GreysWhatOthersWouldGiveWayToAndSaysWhy) {
  session->pick("PageSize", "EnvDL");
  ChoiceBox *sides = box("sides");
  const QModelIndex twoSided = sides->model()->index(sides->findText("Long-edge binding"), 0);
  EXPECT_EQ(twoSided.data(Qt::ToolTipRole).toString(),
            "not with Envelope DL (Paper size would be set to A4)");
  EXPECT_TRUE(twoSided.data(Qt::AccessibleDescriptionRole).isValid());
  EXPECT_TRUE(twoSided.data(Qt::ForegroundRole).isValid());
  EXPECT_TRUE(twoSided.flags() & Qt::ItemIsEnabled);
}

TEST_F(GeneralPageTest, DisablesWhatNeedsMissingEquipment) {
  SessionSetup setup;
  setup.marks = {{"OVKOptionTrays", "2Trays"}};
  open(orvekPpd("6180"), setup);
  ChoiceBox *source = box("paperSource");
  const int tray3 = source->findText("Tray 3");
  EXPECT_FALSE(source->model()->index(tray3, 0).flags() & Qt::ItemIsEnabled);
  EXPECT_FALSE(source->model()->index(tray3, 0).data(Qt::ToolTipRole).toString().isEmpty());
  EXPECT_FALSE(pickRow(source, tray3));
  EXPECT_EQ(marked("InputSlot"), "Auto");
}

TEST_F(GeneralPageTest, TakesAPaperSizeOfTheUsersOwn) {
  auto *width = find<QDoubleSpinBox>("customWidth");
  EXPECT_FALSE(width->isVisible());
  ASSERT_TRUE(pickText(box("paperSize"), "Custom"));
  EXPECT_TRUE(width->isVisible());
  EXPECT_TRUE(marked("PageSize").startsWith("Custom.")) << marked("PageSize").toStdString();
  EXPECT_EQ(box("paperSize")->choice(), "Custom");
  width->setFocus();
  width->selectAll();
  QTest::keyClicks(width, width->suffix().contains("in") ? "5.5" : "150");
  QTest::keyClick(width, Qt::Key_Return);
  EXPECT_TRUE(marked("PageSize")
                  .startsWith(width->suffix().contains("in") ? "Custom.5.50x" : "Custom.150.0x"))
      << marked("PageSize").toStdString();
  ASSERT_TRUE(pickText(box("paperSize"), "A5"));
  EXPECT_FALSE(width->isVisible());
}

TEST_F(GeneralPageTest, HasNoRowForWhatThePrinterLacks) {
  open(orvekPpd("2120"));
  EXPECT_FALSE(box("color")->isVisible());
  EXPECT_TRUE(box("quality")->isVisible());
  open(QString());
  EXPECT_FALSE(box("paperSize")->isVisible());
  EXPECT_TRUE(find<QSpinBox>("copies")->isVisible());
  EXPECT_TRUE(find<QComboBox>("pagesPerSheet")->isVisible());
}

TEST_F(GeneralPageTest, OffersWhatAQueueWithoutPpdCanDo) {
  SessionSetup setup;
  setup.offers = {
      {"sides", "Both", {{"one-sided", "Off"}, {"two-sided-long-edge", "On"}}, "one-sided"},
      {"number-up", "Up", {{"1", "1"}, {"2", "2"}}, "1"},
      {"output-bin", "Tray", {{"face-up", "Upper"}, {"face-down", "Lower"}}, "face-up"}};
  setup.queueOptions = {{"output-bin", "face-down"}};
  open(QString(), setup);
  ChoiceBox *sides = box("sides");
  ASSERT_TRUE(sides->isVisible());
  EXPECT_EQ(sides->choice(), "one-sided");
  ASSERT_TRUE(pickText(sides, "On"));
  EXPECT_EQ(session->job().options().value("sides"), "two-sided-long-edge");
  EXPECT_EQ(sides->choice(), "two-sided-long-edge");
  EXPECT_EQ(box("output-bin")->currentText(), "Lower");
  ASSERT_TRUE(pickText(box("output-bin"), "Upper"));
  EXPECT_EQ(session->job().options().value("output-bin"), "face-up");
  EXPECT_EQ(page->findChild<ChoiceBox *>("number-up"), nullptr);
}

TEST_F(GeneralPageTest, NamesEveryControl) {
  for (QWidget *control : page->findChildren<QWidget *>()) {
    const bool takesKeys = control->focusPolicy() != Qt::NoFocus && control->isVisible();
    if (!takesKeys || control->parentWidget()->inherits("QAbstractSpinBox")) continue;
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(control);
    ASSERT_NE(accessible, nullptr);
    EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty())
        << control->metaObject()->className() << ' ' << control->objectName().toStdString();
  }
}

TEST_F(GeneralPageTest, IsReachedWholeByTheTabKey) {
  QSet<QWidget *> reached;
  find<QSpinBox>("copies")->setFocus();
  for (int i = 0; i < 40; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    reached.insert(QApplication::focusWidget());
  }
  for (const char *name : {"copies", "reverse", "paperSize", "paperSource", "paperType",
                           "orientation", "sides", "pagesPerSheet", "color", "quality"}) {
    EXPECT_TRUE(reached.contains(find<QWidget>(name))) << name;
  }
}

TEST_F(GeneralPageTest, FitsASmallScreenBesideASummary) {
  EXPECT_LE(general->minimumSizeHint().width(), 700);
  EXPECT_LE(general->minimumSizeHint().height(), 480);
}

TEST_F(GeneralPageTest, ShowsHowABookletIsTurnedOverAndWhatIsMarkedAfterwards) {
  session->setTicketValue("OVKEnableBooklet", "True");
  EXPECT_TRUE(QTest::qWaitFor([&] { return box("sides")->choice() == "DuplexTumble"; }));
  EXPECT_EQ(marked("Duplex"), "None");
  session->setTicketValue("OVKEnableBooklet", "False");
  EXPECT_TRUE(QTest::qWaitFor([&] { return box("sides")->choice() == "None"; }));
}

}  // namespace
}  // namespace orvek::test
