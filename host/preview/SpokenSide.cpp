// SPDX-License-Identifier: Apache-2.0
// Two pages beside each other are told as left and right, as a booklet is read.

#include "host/preview/SpokenSide.h"
#include "platform/plugin/FinishingKeywords.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace orvek {
namespace {

using namespace imposition;

struct Words {
  Q_DECLARE_TR_FUNCTIONS(orvek::SpokenSide)
};

double middleX(const PlacedPage &page) {
  return page.frame.x + page.frame.width / 2;
}

// A lone page in the middle has no place worth a word.
QString pageInWords(const PlacedPage &page, const PrintedSide &side) {
  const double from = middleX(page) / std::max(1.0, side.size.width) - 0.5;
  const bool areBeside =
      side.pages.size() == 2 &&
      std::abs(middleX(side.pages[0]) - middleX(side.pages[1])) > side.size.width / 4;
  const bool isAside = side.pages.size() == 1 && std::abs(from) > 0.15;
  if (!areBeside && !isAside) return Words::tr("page %1").arg(page.page);
  return from < 0 ? Words::tr("page %1 left").arg(page.page)
                  : Words::tr("page %1 right").arg(page.page);
}

QStringList pagesInWords(const PrintedSide &side) {
  std::vector<PlacedPage> pages = side.pages;
  if (pages.size() == 2) {
    std::sort(pages.begin(), pages.end(), [](const PlacedPage &one, const PlacedPage &other) {
      return middleX(one) < middleX(other);
    });
  }
  QStringList words;
  for (const PlacedPage &page : pages) words << pageInWords(page, side);
  if (words.isEmpty()) words << Words::tr("blank");
  return words;
}

int marksOf(const PrintedSide &side, MarkKind kind) {
  return static_cast<int>(std::count_if(side.marks.begin(), side.marks.end(),
                                        [kind](const Mark &mark) { return mark.kind == kind; }));
}

}  // namespace

QString sideTitle(const PrintedSide &side, int sheets, bool twoSided) {
  if (!twoSided) return Words::tr("Sheet %1 of %2").arg(side.sheet).arg(sheets);
  return side.face == Face::Front ? Words::tr("Sheet %1 of %2, front").arg(side.sheet).arg(sheets)
                                  : Words::tr("Sheet %1 of %2, back").arg(side.sheet).arg(sheets);
}

QString spokenSide(const PrintedSide &side, const QString &fold) {
  QStringList parts = pagesInWords(side);
  if (!fold.isEmpty()) parts << fold;
  const int staples = marksOf(side, MarkKind::Staple);
  const int holes = marksOf(side, MarkKind::Hole);
  if (staples == 1) parts << Words::tr("1 staple");
  if (staples > 1) parts << Words::tr("%n staples", nullptr, staples);
  if (holes == 1) parts << Words::tr("1 hole");
  if (holes > 1) parts << Words::tr("%n holes", nullptr, holes);
  const QString all = parts.join(Words::tr(", "));
  return side.face == Face::Front ? Words::tr("Sheet %1, front: %2").arg(side.sheet).arg(all)
                                  : Words::tr("Sheet %1, back: %2").arg(side.sheet).arg(all);
}

QString foldInWords(const QString &keyword, const QString &printersWord) {
  if (keyword == QLatin1String(saddleFold)) return Words::tr("saddle fold");
  if (keyword == QLatin1String("Fold")) return Words::tr("single fold");
  return printersWord.isEmpty() ? keyword : printersWord;
}

}  // namespace orvek
