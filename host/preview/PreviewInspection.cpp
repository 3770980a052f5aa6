// SPDX-License-Identifier: Apache-2.0
// Lengths are rounded to hundredths: what lies behind them is no exacter.

#include "host/preview/PreviewInspection.h"

#include <QJsonArray>
#include <cmath>

#include "host/jobs/Document.h"
#include "host/preview/JobLayout.h"
#include "host/session/PrintSession.h"

namespace orvek {
namespace {

using namespace imposition;

double rounded(double length) {
  constexpr double hundredths = 100;
  const double result = std::round(length * hundredths) / hundredths;
  return result == 0 ? 0 : result;  // never "-0"
}

QJsonArray frameOf(const Frame &frame) {
  return {rounded(frame.x), rounded(frame.y), rounded(frame.width), rounded(frame.height)};
}

// Nothing of a page is printed beyond the paper, nor of a booklet's page beyond the fold.
QJsonArray pagesOf(const PrintedSide &side) {
  QJsonArray pages;
  for (const PlacedPage &page : side.pages) {
    pages.append(QJsonObject{{QStringLiteral("page"), page.page},
                             {QStringLiteral("frame"), frameOf(within(page.frame, page.clip))},
                             {QStringLiteral("turn"), page.turn}});
  }
  return pages;
}

QJsonArray marksOf(const PrintedSide &side) {
  QJsonArray marks;
  for (const Mark &mark : side.marks) {
    const bool isHole = mark.kind == MarkKind::Hole;
    marks.append(QJsonObject{{QStringLiteral("kind"), isHole ? "hole" : "staple"},
                             {QStringLiteral("frame"), frameOf(mark.frame)}});
  }
  return marks;
}

QJsonObject sideOf(const PrintedSide &side, int sheet, const std::string &fold) {
  return {{QStringLiteral("sheet"), sheet},
          {QStringLiteral("side"), side.face == Face::Front ? "front" : "back"},
          {QStringLiteral("size"), QJsonArray{rounded(side.size.width), rounded(side.size.height)}},
          {QStringLiteral("fold"), fold.empty() ? QJsonValue() : QString::fromStdString(fold)},
          {QStringLiteral("pages"), pagesOf(side)},
          {QStringLiteral("marks"), marksOf(side)}};
}

// Of a file that isn't there the system says it best.
Result<DocumentPages> readPages(const QString &document, const PrintedWith &with) {
  if (const Status checked = checkAllDocuments({document}); !checked) return checked.failure();
  const std::atomic<bool> cancelled = false;
  return readDocumentPages(document, with, cancelled);
}

}  // namespace

InspectedPreview inspectPreview(PrintSession &session, const QStringList &documents) {
  const LaidOutJob job = laidOutJobOf(session);
  QJsonArray sides;
  InspectedPreview preview;
  int sheets = 0;
  for (const QString &document : documents) {
    const Result<DocumentPages> pages = readPages(document, job.with);
    if (!pages) {
      if (!preview.unread) preview.unread = pages.failure();
      continue;
    }
    const std::vector<PrintedSide> printed = sidesOf(pages.value(), job.sheets);
    for (const PrintedSide &side : printed) {
      sides.append(sideOf(side, sheets + side.sheet, job.sheets.finishing.fold));
    }
    sheets += sheetCount(printed);
  }
  preview.json = {{QStringLiteral("sheets"), sheets},
                  {QStringLiteral("copies"), job.copies},
                  {QStringLiteral("sides"), sides}};
  return preview;
}

}  // namespace orvek
