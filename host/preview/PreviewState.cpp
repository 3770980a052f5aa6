// SPDX-License-Identifier: Apache-2.0
// Reads ticket, page ranges and paper.

#include "host/preview/PreviewState.h"

#include <QCoreApplication>

#include "host/ppd/Paper.h"
#include "host/ppd/Wording.h"
#include "host/session/PrintSession.h"
#include "host/ticket/PageRanges.h"

namespace orvek {
namespace {

constexpr int samplePages = 8;
constexpr QSizeF a4(595, 842);
constexpr int mostSpoken = 25;

const QString pageSizeOption = QStringLiteral("PageSize");

struct Words {
  Q_DECLARE_TR_FUNCTIONS(orvek::PreviewState)
};

// The menu that the ticket's number counts begins with "as the job" and leaves out the PPD's last.
QString targetPaper(const PrintSession &session, int number) {
  const QList<PrinterChoice> sizes = session.marks().printer().choices(pageSizeOption);
  return number < 1 || number >= sizes.size() ? session.marks().marked(pageSizeOption)
                                              : sizes[number - 1].keyword;
}

QString pageInWords(int page) {
  return page == 0 ? Words::tr("empty") : QString::number(page);
}

}  // namespace

PreviewState previewState(const PrintSession &session, int pageCount, QSizeF pageSize) {
  PreviewState state;
  const PrinterDescription &printer = session.marks().printer();
  state.booklet = bookletSettings(session.ticket().values());
  state.isSample = pageCount <= 0;
  const QString ranges = state.isSample ? QString() : session.job().settings().pageRanges;
  const QList<int> pages = pagesInRanges(ranges, state.isSample ? samplePages : pageCount);
  state.pages = static_cast<int>(pages.size());
  const QString marked = session.marks().marked(pageSizeOption);
  const QString target = targetPaper(session, state.booklet.targetPaper);
  state.paper = paperSize(printer, target);
  if (state.paper.isEmpty()) state.paper = a4;
  if (!target.isNull()) state.paperName = choiceText(printer, {pageSizeOption, target});
  state.page = pageSize.isEmpty() ? paperSize(printer, marked) : pageSize;
  if (state.page.isEmpty()) state.page = a4;
  if (state.booklet.enabled) state.sheets = imposeBooklet(pages, state.booklet);
  return state;
}

QString spokenSheets(const QList<ImposedSheet> &sheets) {
  QStringList sentences;
  for (int i = 0; i < sheets.size() && i < mostSpoken; ++i) {
    const ImposedSheet &sheet = sheets[i];
    sentences << Words::tr("Sheet %1: front %2 and %3, back %4 and %5")
                     .arg(QString::number(i + 1), pageInWords(sheet.front.left),
                          pageInWords(sheet.front.right), pageInWords(sheet.back.left),
                          pageInWords(sheet.back.right));
  }
  return sentences.join(QStringLiteral(". "));
}

}  // namespace orvek
