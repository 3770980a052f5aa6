// SPDX-License-Identifier: Apache-2.0
// Booklets for print servers that are told of no driver: what is sent instead, and what comes out.

#include "tests/host/jobs/SheetsMadeHere.h"

namespace orvek::test {
namespace {

TEST_F(SheetsMadeHere, AreABookletWhereTheServerIsToldOfNoDriver) {
  addOldQueue();
  request.files = {document(8)};
  request.options.insert(QStringLiteral("copies"), QStringLiteral("2"));
  request.options.insert(QStringLiteral("OVKGutter"), QStringLiteral("36"));
  request.options.insert(QStringLiteral("OVKFolding"), QStringLiteral("Saddle"));
  request.options.insert(QStringLiteral("Duplex"), QStringLiteral("None"));
  const QByteArray bytes = printed(ServerDriver::MakesNoBooklets);
  imposition::BookletKeys keys;
  keys.gutter = 36;
  expectSeen(seen(), eachTwice(bookletOf(8, a4, keys)));
  EXPECT_EQ(bytes.count("%%BeginFeature: *Duplex DuplexTumble"), 1);
  EXPECT_EQ(bytes.count("%%BeginFeature: *OVKFolding Saddle"), 1);
  EXPECT_TRUE(makesTwoSets(bytes));
  EXPECT_EQ(attribute("copies"), QStringLiteral("2"));
  EXPECT_EQ(attribute("job-name"), QStringLiteral("in.pdf"));
}

TEST_F(SheetsMadeHere, AskTheServerForNothingThatIsDone) {
  addOldQueue();
  request.files = {document(8)};
  request.options.insert(QStringLiteral("page-ranges"), QStringLiteral("1-3"));
  request.options.insert(QStringLiteral("OutputOrder"), QStringLiteral("reverse"));
  request.options.insert(QStringLiteral("number-up"), QStringLiteral("1"));
  printed(ServerDriver::MakesNoBooklets);
  expectSeen(seen(), asIntoAFile());
  for (const char *done : {"page-ranges", "outputorder", "OutputOrder", "OVKEnableBooklet"}) {
    EXPECT_EQ(attribute(done), QString()) << done;
  }
}

TEST_F(SheetsMadeHere, AreTurnedRoundOnceByWhicheverWordTheirOrderWasAskedFor) {
  addOldQueue();
  request.files = {document(8)};
  for (const char *order : {"OutputOrder", "output-order", "page-delivery"}) {
    SCOPED_TRACE(order);
    request.options = {{QStringLiteral("OVKEnableBooklet"), QStringLiteral("True")},
                       {QLatin1String(order), QStringLiteral("reverse")}};
    printed(ServerDriver::MakesNoBooklets);
    expectSeen(seen(), asIntoAFile());
    EXPECT_EQ(attribute(order), QString());
  }
}

TEST_F(SheetsMadeHere, AreOnThePaperThatTheBookletIsFor) {
  const QByteArray ppd = contentsOf(orvekPPD(QStringLiteral("6180")));
  const qsizetype before = ppd.indexOf("\n*OpenUI *PageSize");
  const auto place = ppd.mid(before, ppd.indexOf("\n*PageSize A3/") - before).count("\n*PageSize ");
  addOldQueue();
  request.files = {document(4)};
  request.sheetPaper = QStringLiteral("A3");
  request.options.insert(QStringLiteral("OVKTargetPaperSize"), QString::number(place + 1));
  request.options.insert(QStringLiteral("media"), QStringLiteral("A4"));
  printed(ServerDriver::MakesNoBooklets);
  expectSeen(seen(), bookletOf(4, a3));
}

TEST_F(SheetsMadeHere, TakeWhatIsSavedForTheQueueIntoAccount) {
  addOldQueue();
  ASSERT_EQ(
      cups->run(QStringLiteral("lpoptions"), {QStringLiteral("-p"), queueName, QStringLiteral("-o"),
                                              QStringLiteral("page-ranges=2-5")})
          .exitStatus,
      0);
  request.files = {document(8)};
  printed(ServerDriver::MakesNoBooklets);
  EXPECT_EQ(seen().size(), 2U);
  EXPECT_EQ(attribute("page-ranges"), QString());
}

TEST_F(SheetsMadeHere, AreABookletEachOfSeveralDocuments) {
  addOldQueue();
  const QString text = kit.write(QStringLiteral("in.txt"), "A text\n");
  request.files = {document(5), text};
  printed(ServerDriver::MakesNoBooklets);
  EXPECT_EQ(outcome.documents, 2);
  EXPECT_EQ(seen().size(), 6U);
}

TEST_F(SheetsMadeHere, AreNotNeededForOtherJobsWhereTheServerIsToldOfNoDriver) {
  addOldQueue();
  EXPECT_EQ(printedPlain(2, ServerDriver::Works).count("%%Page: "), 2);
}

TEST_F(SheetsMadeHere, HaveTheirBannersFromAServerThatMakesNoBooklets) {
  addOldQueue();
  request.files = {document(4)};
  request.options.insert(QStringLiteral("job-sheets"), QStringLiteral("none,standard"));
  printed(ServerDriver::MakesNoBooklets);
  EXPECT_FALSE(outcome.lacksBanners);
  EXPECT_EQ(attribute("job-sheets"), QStringLiteral("none,standard"));
}

TEST_F(SheetsMadeHere, AreNotMadeOfABookletUnlessTheRequestSaysSo) {
  addOldQueue();
  expectHeldBack(ServerDriver::MakesNoBooklets);
}

TEST_F(SheetsMadeHere, AreNoAffairOfAQueueWithoutAPpdOrWithAnothersFilter) {
  addQueue({});
  request.files = {document(2)};
  EXPECT_EQ(submit().driver, ServerDriver::Works);
  const CapturingFilter filter;
  addQueue(filter.ppdFile());
  EXPECT_EQ(submit().driver, ServerDriver::Works);
}

}  // namespace
}  // namespace orvek::test
