// SPDX-License-Identifier: Apache-2.0
// The model of the standard filters against the filters themselves: the same random jobs go through
// pdftopdf, and pages are looked for where the model says they are.

#include "imposition/FilterLayout.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "imposition/CellOrder.h"
#include "tests/imposition/FilterComparison.h"
#include "tests/support/Dice.h"
#include "tests/support/NumberedPages.h"

namespace orvek::imposition {
namespace {

constexpr const char *filter = "/usr/lib/cups/filter/pdftopdf";
constexpr double tolerance = 2;
constexpr unsigned randomJobs = 60;

struct PaperName {
  const char *name;
  Size size;
};
constexpr PaperName papers[] = {{"A4", {595, 842}},
                                {"A3", {842, 1191}},
                                {"A5", {420, 595}},
                                {"Letter", {612, 792}},
                                {"Legal", {612, 1008}},
                                {"Env10", {297, 684}},
                                {"Custom.842x595", {842, 595}}};
constexpr double margin = 12;  // of the PPD's papers

const std::vector<QSizeF> pageSizes{{595, 842},  {842, 595}, {420, 595}, {595, 420}, {612, 792},
                                    {842, 1191}, {300, 300}, {700, 500}, {600, 842}};

struct RandomJob {
  FilterJob job;
  QStringList options;
  QList<test::NumberedPage> pages;
};

void choosePages(test::Dice &dice, RandomJob *job) {
  const int count = dice.from(1, 9);
  const bool isMixed = dice.any<bool>({true, false});
  QSizeF size = dice.any(pageSizes);
  for (int i = 0; i < count; ++i) {
    if (isMixed) size = dice.any(pageSizes);
    // The filters themselves lose the middle of square pages that have a quarter turn.
    const bool isSquare = size.width() == size.height();
    job->pages.append({size, isSquare ? 0 : dice.any<int>({0, 0, 0, 90, 180, 270}), {}, {}});
  }
  if (dice.any<int>({0, 1, 2}) == 0) job->pages[0].trim = QRectF(40, 60, 200, 190);
}

void chooseSides(test::Dice &dice, RandomJob *job) {
  SideSelection &sides = job->job.sides;
  switch (dice.any<int>({0, 0, 1, 2})) {
    case 1:
      sides.ranges = {{1, 2}};
      job->options << QStringLiteral("page-ranges=1-2");
      break;
    case 2:
      sides.ranges = {{1, 1}, {3, 0}};
      job->options << QStringLiteral("page-ranges=1,3-");
      break;
    default:
      break;
  }
  sides.parity = dice.any<Parity>({Parity::All, Parity::All, Parity::All, Parity::Odd});
  if (sides.parity == Parity::Odd) job->options << QStringLiteral("page-set=odd");
  sides.reverse = dice.any<bool>({false, true});
  if (sides.reverse) job->options << QStringLiteral("outputorder=reverse");
  sides.twoSided = dice.any<bool>({false, true});
  if (sides.twoSided) job->options << QStringLiteral("Duplex=DuplexNoTumble");
}

void chooseBooklet(test::Dice &dice, RandomJob *job) {
  job->job.booklet = dice.any<OwnBooklet>(
      {OwnBooklet::Off, OwnBooklet::Off, OwnBooklet::Off, OwnBooklet::Sides, OwnBooklet::Order});
  if (job->job.booklet == OwnBooklet::Off) return;
  const bool isWhole = job->job.booklet == OwnBooklet::Sides;
  job->options << (isWhole ? QStringLiteral("booklet") : QStringLiteral("booklet=shuffle-only"));
  job->job.signature = dice.any<int>({0, 0, 4, 8});
  if (job->job.signature == 0) return;
  job->options << QStringLiteral("booklet-signature=%1").arg(job->job.signature);
}

void choosePlaces(test::Dice &dice, RandomJob *job) {
  const auto place = dice.any<std::string>(
      {"", "", "left", "top-right", "bottom", "bottom-left", "center", "top"});
  job->job.position = readPosition(place);
  if (!place.empty()) job->options << "position=" + QString::fromStdString(place);
  for (const test::NumberedPage &page : job->pages) job->job.ownTurns.push_back(page.turn);
  job->job.isMirrored = dice.any<int>({0, 1, 2, 3}) == 0;
  if (job->job.isMirrored) job->options << QStringLiteral("mirror");
  chooseBooklet(dice, job);
}

RandomJob randomJob(unsigned seed) {
  test::Dice dice(seed);
  RandomJob job;
  choosePages(dice, &job);
  chooseSides(dice, &job);
  const PaperName paper = dice.any(std::vector<PaperName>(std::begin(papers), std::end(papers)));
  job.job.paper = paper.size;
  job.job.printable = {margin, margin, paper.size.width - 2 * margin,
                       paper.size.height - 2 * margin};
  job.options << QStringLiteral("PageSize=%1").arg(QString::fromLatin1(paper.name));
  job.job.pagesPerSide = dice.any<int>({1, 1, 1, 2, 2, 3, 4, 6, 8, 9, 10, 12, 15, 16, 5});
  if (job.job.pagesPerSide > 1) {
    job.options << QStringLiteral("number-up=%1").arg(job.job.pagesPerSide);
  }
  job.job.order = dice.any<std::string>({"", "", "rltb", "tblr", "btrl", "lrbt"});
  if (!job.job.order.empty()) {
    job.options << QStringLiteral("number-up-layout=%1").arg(QString::fromStdString(job.job.order));
  }
  const int orientation = dice.any<int>({0, 0, 0, 3, 4, 5, 6});
  if (orientation > 0) {
    job.job.turning = static_cast<Turning>(orientation - 3);
    job.options << QStringLiteral("orientation-requested=%1").arg(orientation);
  }
  job.job.scaling = dice.any<Scaling>(
      {Scaling::Automatic, Scaling::Automatic, Scaling::None, Scaling::Fit, Scaling::Fill});
  const char *words[] = {"auto", "none", "fit", "fill"};
  job.options << QStringLiteral("print-scaling=%1")
                     .arg(QString::fromLatin1(words[static_cast<int>(job.job.scaling)]));
  choosePlaces(dice, &job);
  return job;
}

QList<test::FoundSide> filtered(const QTemporaryDir &folder, const RandomJob &job) {
  const QString in = folder.filePath(QStringLiteral("in.pdf"));
  const QString out = folder.filePath(QStringLiteral("out.pdf"));
  QFile file(in);
  if (!file.open(QIODevice::WriteOnly)) return {};
  file.write(test::numberedPdf(job.pages));
  file.close();
  runFilter(QString::fromLatin1(filter), filterArguments(job.options, in), out, "application/pdf");
  return test::findPages(out);
}

Size shownSize(const test::NumberedPage &page) {
  const QSizeF size = page.trim.isEmpty() ? page.size : page.trim.size();
  if (page.turn % 180 != 0) return {size.height(), size.width()};
  return {size.width(), size.height()};
}

void expectSame(const test::FoundSide &found, const FilteredSide &expected, Size paper) {
  // Blank sides that even a job out may lie the other way round.
  if (!expected.pages.empty()) {
    EXPECT_NEAR(found.size.width(), paper.width, tolerance);
    EXPECT_NEAR(found.size.height(), paper.height, tolerance);
  }
  expectPages(found, expected.pages);
}

void expectAsFiltered(unsigned seed) {
  const RandomJob job = randomJob(seed);
  SCOPED_TRACE("seed " + std::to_string(seed) + ": " +
               job.options.join(QLatin1Char(' ')).toStdString());
  std::vector<Size> sizes;
  for (const test::NumberedPage &page : job.pages) sizes.push_back(shownSize(page));
  const QTemporaryDir folder;
  const QList<test::FoundSide> found = filtered(folder, job);
  const std::vector<FilteredSide> sides = layOutAsFiltered(sizes, job.job);
  ASSERT_EQ(found.size(), static_cast<qsizetype>(sides.size()));
  for (std::size_t i = 0; i < sides.size(); ++i) {
    SCOPED_TRACE("side " + std::to_string(i + 1));
    expectSame(found[static_cast<qsizetype>(i)], sides[i], job.job.paper);
  }
}

TEST(FilterLayout, PutsPagesWhereTheFiltersPutThem) {
  if (!QFile::exists(QString::fromLatin1(filter))) GTEST_SKIP() << "needs cups-filters' pdftopdf";
  const unsigned jobs = numberOfJobs(randomJobs);
  for (unsigned i = 0; i < jobs; ++i) expectAsFiltered(firstSeed() + i);
}

TEST(FilterLayout, GivesNothingForNoPagesAndNoPaper) {
  FilterJob job;
  job.paper = {595, 842};
  EXPECT_TRUE(layOutAsFiltered({}, job).empty());
  const std::vector<Size> pages{{595, 842}};
  EXPECT_TRUE(layOutAsFiltered(pages, {}).empty());
}

TEST(FilterLayout, PlacesAPageWithoutASizeAsAnEmptyFrame) {
  const std::vector<Size> pages{{0, 0}, {595, 842}};
  FilterJob job;
  job.paper = {595, 842};
  for (const Scaling scaling : {Scaling::Automatic, Scaling::None, Scaling::Fit, Scaling::Fill}) {
    job.scaling = scaling;
    const auto sides = layOutAsFiltered(pages, job);
    ASSERT_EQ(sides.size(), 2U);
    EXPECT_EQ(sides[0].pages[0].frame.width, 0);
    EXPECT_GT(sides[1].pages[0].frame.width, 0);
  }
}

TEST(FilterLayout, EvensAReversedTwoSidedJobOutWithABlankSideInFront) {
  const std::vector<Size> pages(3, Size{595, 842});
  FilterJob job;
  job.paper = {595, 842};
  job.sides.reverse = true;
  job.sides.twoSided = true;
  const auto sides = layOutAsFiltered(pages, job);
  ASSERT_EQ(sides.size(), 4U);
  EXPECT_TRUE(sides[0].pages.empty());
  EXPECT_EQ(sides[1].pages.at(0).page, 3);
}

}  // namespace
}  // namespace orvek::imposition
