// SPDX-License-Identifier: Apache-2.0
// The model of the filter of PostScript against that filter: the same random jobs go through
// pstops, and pages are looked for where the model says they are.

#include "imposition/ScriptLayout.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "tests/imposition/FilterComparison.h"
#include "tests/support/Dice.h"
#include "tests/support/NumberedPages.h"

namespace orvek::imposition {
namespace {

constexpr const char *filter = "/usr/lib/cups/filter/pstops";
constexpr const char *type = "application/postscript";
constexpr unsigned randomJobs = 20;
constexpr Size a4{595, 842};

struct RandomJob {
  FilterJob job;
  QStringList options;
  std::vector<Size> pages;
};

void chooseSides(test::Dice &dice, RandomJob *job) {
  SideSelection &sides = job->job.sides;
  sides.reverse = dice.any<bool>({false, false, true});
  if (sides.reverse) job->options << QStringLiteral("outputorder=reverse");
  sides.parity = dice.any<Parity>({Parity::All, Parity::All, Parity::Even});
  if (sides.parity == Parity::Even) job->options << QStringLiteral("page-set=even");
  sides.twoSided = dice.any<bool>({false, true});
  if (sides.twoSided) job->options << QStringLiteral("Duplex=DuplexNoTumble");
}

RandomJob randomJob(unsigned seed) {
  test::Dice dice(seed);
  RandomJob job;
  job.pages.assign(dice.any<std::size_t>({1, 2, 5, 7, 17}), a4);
  const bool isA3 = dice.any<int>({0, 0, 1}) == 1;
  job.job.paper = isA3 ? Size{842, 1191} : a4;
  job.options << (isA3 ? QStringLiteral("PageSize=A3") : QStringLiteral("PageSize=A4"));
  constexpr double margin = 12;
  job.job.printable = {margin, margin, job.job.paper.width - 2 * margin,
                       job.job.paper.height - 2 * margin};
  job.job.pagesPerSide = dice.any<int>({1, 1, 2, 2, 4, 6, 9, 16, 3, 8});
  job.options << QStringLiteral("number-up=%1").arg(job.job.pagesPerSide);
  const int orientation = dice.any<int>({0, 0, 3, 4, 5, 6});
  if (orientation > 0) {
    job.job.turning = static_cast<Turning>(orientation - 3);
    job.options << QStringLiteral("orientation-requested=%1").arg(orientation);
  }
  job.job.order = dice.any<std::string>({"lrtb", "rltb", "tblr", "btrl", "lrbt"});
  job.options << QStringLiteral("number-up-layout=%1").arg(QString::fromStdString(job.job.order));
  job.job.fitsScripts = dice.any<int>({0, 0, 1}) == 1;
  if (job.job.fitsScripts) job.options << QStringLiteral("fit-to-page");
  job.job.isMirrored = dice.any<int>({0, 0, 1}) == 1;
  if (job.job.isMirrored) job.options << QStringLiteral("mirror");
  chooseSides(dice, &job);
  return job;
}

QList<test::FoundSide> filtered(const QTemporaryDir &folder, const RandomJob &job) {
  const QString in = folder.filePath(QStringLiteral("in.ps"));
  const QString out = folder.filePath(QStringLiteral("out.ps"));
  const QString pdf = folder.filePath(QStringLiteral("out.pdf"));
  QFile file(in);
  if (!file.open(QIODevice::WriteOnly)) return {};
  const QSizeF size(job.pages[0].width, job.pages[0].height);
  file.write(test::numberedPostScript(static_cast<int>(job.pages.size()), size));
  file.close();
  runFilter(QString::fromLatin1(filter), filterArguments(job.options, in), out, type);
  runFilter(QStringLiteral("gs"),
            {QStringLiteral("-q"), QStringLiteral("-dBATCH"), QStringLiteral("-dNOPAUSE"),
             QStringLiteral("-sDEVICE=pdfwrite"), QStringLiteral("-dAutoRotatePages=/None"),
             QStringLiteral("-sOutputFile=") + pdf, out},
            QString(), type);
  return test::findPages(pdf);
}

void expectAsFiltered(unsigned seed) {
  const RandomJob job = randomJob(seed);
  SCOPED_TRACE("seed " + std::to_string(seed) + ": " +
               job.options.join(QLatin1Char(' ')).toStdString());
  const std::vector<FilteredSide> sides = layOutAsScript(job.pages, job.job);
  if (sides.empty()) {
    // A single side has no other to be the even one of.
    EXPECT_EQ(job.job.sides.parity, Parity::Even);
    return;
  }
  const QTemporaryDir folder;
  const QList<test::FoundSide> found = filtered(folder, job);
  ASSERT_EQ(found.size(), static_cast<qsizetype>(sides.size()));
  for (std::size_t i = 0; i < sides.size(); ++i) {
    SCOPED_TRACE("side " + std::to_string(i + 1));
    expectPages(found[static_cast<qsizetype>(i)], sides[i].pages);
  }
}

TEST(ScriptLayout, PutsPagesWhereTheFilterPutsThem) {
  if (!QFile::exists(QString::fromLatin1(filter))) GTEST_SKIP() << "needs CUPS' pstops";
  if (QStandardPaths::findExecutable(QStringLiteral("gs")).isEmpty()) {
    GTEST_SKIP() << "needs Ghostscript";
  }
  const unsigned jobs = numberOfJobs(randomJobs);
  for (unsigned i = 0; i < jobs; ++i) expectAsFiltered(firstSeed() + i);
}

TEST(ScriptLayout, BeginsAReversedJobWithABlankSideUnlessItsDocumentHasOneSideAlone) {
  FilterJob job;
  job.paper = {595, 842};
  job.sides.twoSided = true;
  job.sides.reverse = true;
  job.sides.ranges = {{3, 3}};
  const std::vector<Size> pages(6, Size{595, 842});
  const auto sides = layOutAsScript(pages, job);
  ASSERT_EQ(sides.size(), 2U);
  EXPECT_TRUE(sides[0].pages.empty());
  job.sides.ranges.clear();
  EXPECT_EQ(layOutAsScript(std::span(pages).first(1), job).size(), 1U);
}

TEST(ScriptLayout, GivesNothingForNoPagesAndNoPaper) {
  FilterJob job;
  job.paper = a4;
  EXPECT_TRUE(layOutAsScript({}, job).empty());
  EXPECT_TRUE(layOutAsScript({{a4}}, {}).empty());
}

}  // namespace
}  // namespace orvek::imposition
