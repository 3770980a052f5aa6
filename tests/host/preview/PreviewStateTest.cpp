// SPDX-License-Identifier: Apache-2.0
// What the preview makes of a session.

#include "host/preview/PreviewState.h"

#include <gtest/gtest.h>

#include "host/session/PrintSession.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

class PreviewStateTest : public testing::Test {
 protected:
  void SetUp() override {
    SessionSetup setup;
    setup.printer =
        PrinterDescription::open(QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"))
            .take();
    session = PrintSession::begin(setup).take();
    session->ticket().setValue("OVKEnableBooklet", "True");
  }

  PreviewState state(int pages = 8) const { return previewState(*session, pages, {300, 400}); }

  std::unique_ptr<PrintSession> session;
};

TEST_F(PreviewStateTest, ImposesTheDocumentsPages) {
  EXPECT_EQ(state(8).sheets.size(), 2);
  EXPECT_EQ(state(8).pages, 8);
  EXPECT_FALSE(state(8).isSample);
  EXPECT_EQ(state(8).sheets[0].front, (ImposedSide{8, 1}));
}

TEST_F(PreviewStateTest, ImposesOnlyThePagesThatAreAskedFor) {
  JobSettings job;
  job.pageRanges = QStringLiteral("5-8");
  session->job().setSettings(job);
  EXPECT_EQ(state(8).sheets, (QList<ImposedSheet>{{{8, 5}, {6, 7}, 0}}));
}

TEST_F(PreviewStateTest, ShowsASampleOfADocumentOfUnknownLength) {
  EXPECT_TRUE(state(0).isSample);
  EXPECT_EQ(state(0).sheets.size(), 2);
}

TEST_F(PreviewStateTest, HasNoSheetsWithoutABooklet) {
  session->ticket().setValue("OVKEnableBooklet", "False");
  EXPECT_TRUE(state().sheets.isEmpty());
  session->ticket().setValue("OVKEnableBooklet", "True");
  session->job().setPagesPerSheet(2);
  EXPECT_TRUE(state().sheets.isEmpty());
}

TEST_F(PreviewStateTest, FitsTheCurrentJobOrTakesTheTargetPaper) {
  EXPECT_EQ(state().paperName, "A4");
  session->ticket().setValue("OVKTargetPaperSize", "1");
  EXPECT_EQ(state().paperName, "A3");
  EXPECT_EQ(state().paper, QSizeF(842, 1191));
  session->ticket().setValue("OVKTargetPaperSize", "0");
  session->pick("PageSize", "Letter");
  EXPECT_EQ(state().paper, QSizeF(612, 792));
}

TEST_F(PreviewStateTest, TakesTheJobsPaperWhereTheTicketsNumberIsBeyondTheMenu) {
  const auto sizes = static_cast<int>(session->marks().printer().choices("PageSize").size());
  ASSERT_GT(sizes, 1);
  for (const int number : {-1, sizes, 999}) {
    session->ticket().setValue("OVKTargetPaperSize", number);
    EXPECT_EQ(state().paperName, "A4") << number;
  }
}

TEST_F(PreviewStateTest, KnowsTheSizeOfACustomPaper) {
  session->pick("PageSize", "Custom.400x500");
  EXPECT_EQ(state().paper, QSizeF(400, 500));
}

TEST_F(PreviewStateTest, TakesTheMarkedPaperForPagesOfUnknownSize) {
  session->pick("PageSize", "Letter");
  EXPECT_EQ(previewState(*session, 8, {}).page, QSizeF(612, 792));
  EXPECT_EQ(state().page, QSizeF(300, 400));
}

TEST_F(PreviewStateTest, SaysTheSheetsInWords) {
  EXPECT_EQ(
      spokenSheets(state(5).sheets),
      "Sheet 1: front empty and 1, back 2 and empty. Sheet 2: front empty and 3, back 4 and 5");
}

TEST(PreviewStateWithoutPpd, ShowsA4) {
  const auto session = PrintSession::begin({}).take();
  session->ticket().setValue("OVKEnableBooklet", "True");
  const PreviewState state = previewState(*session, 4, {});
  EXPECT_EQ(state.sheets.size(), 1);
  EXPECT_EQ(state.paper, QSizeF(595, 842));
  EXPECT_TRUE(state.paperName.isNull());
}

}  // namespace
}  // namespace orvek::test
