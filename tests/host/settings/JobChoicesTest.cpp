// SPDX-License-Identifier: Apache-2.0
// What a job is told whatever its printer, on the general page under a user's hands.

#include "host/session/JobChoices.h"

#include <gtest/gtest.h>

#include <QSpinBox>

#include "host/settings/ChoiceBox.h"
#include "host/settings/GeneralPage.h"
#include "tests/host/settings/SettingsKit.h"

namespace orvek::test {
namespace {

const QList<SettingOffer> offersOfAServer{
    {QStringLiteral("job-sheets"),
     {},
     {{QStringLiteral("none"), {}},
      {QStringLiteral("confidential"), {}},
      {QStringLiteral("our-own"), QStringLiteral("Our own")}},
     {}},
    {QStringLiteral("job-hold-until"),
     {},
     {{QStringLiteral("no-hold"), {}}, {QStringLiteral("night"), {}}},
     {}},
};

class JobChoices : public testing::Test {
 protected:
  void open(SessionSetup setup = {}) {
    session = beginSession(orvekPpd("6180"), std::move(setup));
    page = std::make_unique<GeneralPage>(*session);
    page->show();
    page->activateWindow();
    QCoreApplication::processEvents();
  }

  ChoiceBox *box(const char *name) { return page->findChild<ChoiceBox *>(QLatin1String(name)); }
  QString said(const char *option) { return session->job().options().value(QLatin1String(option)); }
  QString lastAct() const { return session->history().done().value(0).words; }

  std::unique_ptr<PrintSession> session;
  std::unique_ptr<GeneralPage> page;
};

TEST_F(JobChoices, TellTheJobWhichPagesAndHowLarge) {
  open();
  ASSERT_TRUE(pickText(box("pageSet"), "Odd pages only"));
  EXPECT_EQ(said("page-set"), "odd");
  EXPECT_EQ(lastAct(), "Odd and even pages: Odd pages only");
  ASSERT_TRUE(pickText(box("scaling"), "Fit to page"));
  EXPECT_EQ(said("print-scaling"), "fit");
  EXPECT_EQ(lastAct(), "Adjust size: Fit to page");
  session->undo();
  EXPECT_EQ(box("scaling")->currentText(), "Automatic");
  ASSERT_TRUE(pickText(box("pageSet"), "All pages"));
  EXPECT_EQ(lastAct(), "Odd and even pages: All pages");
  EXPECT_TRUE(session->job().options().isEmpty());
}

TEST_F(JobChoices, OrderPagesWhereSeveralStandOnASheet) {
  open();
  EXPECT_FALSE(box("orderOnSheet")->isEnabled());
  session->job().setPagesPerSheet(4);
  EXPECT_TRUE(box("orderOnSheet")->isEnabled());
  ASSERT_TRUE(pickText(box("orderOnSheet"), "Down, then left to right"));
  EXPECT_EQ(said("number-up-layout"), "tblr");
}

TEST_F(JobChoices, ShowWhatTheCommandLineSaidInAnyWords) {
  open();
  session->setTicketValue("fit-to-page", "true");
  QCoreApplication::processEvents();
  EXPECT_EQ(box("scaling")->currentText(), "Fit to page");
  session->setTicketValue("print-scaling", "none");
  QCoreApplication::processEvents();
  EXPECT_EQ(box("scaling")->currentText(), "Actual size");
  ASSERT_TRUE(pickText(box("scaling"), "Automatic"));
  EXPECT_TRUE(session->job().options().isEmpty());
}

TEST_F(JobChoices, OverruleWhatIsSavedForTheQueue) {
  SessionSetup setup;
  setup.queueOptions = {{"fit-to-page", "true"}, {"page-set", "even"}, {"job-sheets", "none,none"}};
  setup.jobOffers = offersOfAServer;
  open(setup);
  EXPECT_EQ(box("scaling")->currentText(), "Fit to page");
  EXPECT_EQ(box("pageSet")->currentText(), "Even pages only");
  EXPECT_EQ(box("banner")->currentText(), "Off");
  EXPECT_TRUE(session->job().options().isEmpty());
  ASSERT_TRUE(pickText(box("scaling"), "Automatic"));
  EXPECT_EQ(said("fit-to-page"), "false");
  ASSERT_TRUE(pickText(box("pageSet"), "All pages"));
  EXPECT_EQ(said("page-set"), "all");
  ASSERT_TRUE(pickText(box("pageSet"), "Even pages only"));
  EXPECT_FALSE(session->job().options().contains("page-set"));
}

TEST_F(JobChoices, AreThePrintServersOnlyWhereItWasAskedWhatItTakes) {
  open();
  for (const char *name : {"banner", "startPrinting", "priority"}) {
    EXPECT_FALSE(box(name)->isVisible()) << name;
  }
  SessionSetup setup;
  setup.jobOffers = offersOfAServer;
  open(setup);
  EXPECT_EQ(box("banner")->count(), 3);
  EXPECT_EQ(box("startPrinting")->count(), 2);
  ASSERT_TRUE(pickText(box("banner"), "Our own"));
  EXPECT_EQ(said("job-sheets"), "our-own");
  ASSERT_TRUE(pickText(box("startPrinting"), "At night"));
  EXPECT_EQ(said("job-hold-until"), "night");
  EXPECT_EQ(box("priority")->currentText(), "Normal");
  ASSERT_TRUE(pickText(box("priority"), "Urgent"));
  EXPECT_EQ(said("job-priority"), "100");
}

TEST_F(JobChoices, OfferAValueThatIsUnusualBesideTheOthers) {
  SessionSetup setup;
  setup.jobOffers = offersOfAServer;
  open(setup);
  pickJobChoice(*session, JobChoice::Priority, QStringLiteral("75"));
  EXPECT_EQ(box("priority")->currentText(), "75");
  EXPECT_EQ(box("priority")->count(), 5);
}

}  // namespace
}  // namespace orvek::test
