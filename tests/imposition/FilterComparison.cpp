// SPDX-License-Identifier: Apache-2.0
// Runs filters, and compares by edges.

#include "tests/imposition/FilterComparison.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <algorithm>
#include <cstdlib>

namespace orvek::imposition {
namespace {

constexpr double tolerance = 2;

unsigned number(const char *variable, unsigned usual) {
  const char *given = std::getenv(variable);
  return given == nullptr ? usual : static_cast<unsigned>(std::atoi(given));
}

QRectF rect(const Frame &frame) {
  return {frame.x, frame.y, frame.width, frame.height};
}

QRectF visible(const PlacedPage &page) {
  return rect(page.frame).intersected(rect(page.clip));
}

void expectNear(const QRectF &found, const QRectF &expected) {
  EXPECT_NEAR(found.left(), expected.left(), tolerance);
  EXPECT_NEAR(found.top(), expected.top(), tolerance);
  EXPECT_NEAR(found.right(), expected.right(), tolerance);
  EXPECT_NEAR(found.bottom(), expected.bottom(), tolerance);
}

}  // namespace

unsigned firstSeed() {
  return number("ORVEK_SEED", 1);
}

unsigned numberOfJobs(unsigned usual) {
  return number("ORVEK_JOBS", usual);
}

void runFilter(const QString &program, const QStringList &arguments, const QString &output,
               const char *documentType) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("PPD"),
                     QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"));
  environment.insert(QStringLiteral("CONTENT_TYPE"), QString::fromLatin1(documentType));
  process.setProcessEnvironment(environment);
  process.setStandardOutputFile(output.isEmpty() ? QProcess::nullDevice() : output);
  process.start(program, arguments);
  process.waitForFinished(-1);
}

QStringList filterArguments(const QStringList &options, const QString &file) {
  return {QStringLiteral("1"), QStringLiteral("user"),         QStringLiteral("title"),
          QStringLiteral("1"), options.join(QLatin1Char(' ')), file};
}

void expectPages(const test::FoundSide &found, std::vector<PlacedPage> expected) {
  std::erase_if(expected, [](const PlacedPage &page) { return visible(page).isEmpty(); });
  std::sort(expected.begin(), expected.end(),
            [](const PlacedPage &one, const PlacedPage &other) { return one.page < other.page; });
  ASSERT_EQ(found.pages.size(), static_cast<qsizetype>(expected.size()));
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const test::FoundPage &page = found.pages[static_cast<qsizetype>(i)];
    SCOPED_TRACE("page " + std::to_string(page.page));
    EXPECT_EQ(page.page, expected[i].page);
    expectNear(page.frame, visible(expected[i]));
    const QRectF clip = rect(expected[i].clip).adjusted(-1, -1, 1, 1);
    if (clip.contains(rect(expected[i].frame))) {
      EXPECT_EQ(page.turn.value_or(-1), expected[i].turn);
    }
  }
}

}  // namespace orvek::imposition
