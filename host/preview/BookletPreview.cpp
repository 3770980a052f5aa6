// SPDX-License-Identifier: Apache-2.0
// Words above, sheets below; words alone where there is no booklet.

#include "host/preview/BookletPreview.h"

#include <QLabel>
#include <QVBoxLayout>

#include "host/preview/SheetsView.h"

namespace orvek {
namespace {

constexpr int margin = 12;
constexpr int gap = 8;

QString sheetsInWords(int sheets) {
  return sheets == 1 ? BookletPreview::tr("1 sheet") : BookletPreview::tr("%1 sheets").arg(sheets);
}

}  // namespace

BookletPreview::BookletPreview(PrintSession &session, int pageCount, QSizeF pageSizePoints,
                               QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_pageCount(pageCount),
      m_pageSize(pageSizePoints),
      m_caption(new QLabel(this)),
      m_sheets(new SheetsView(this)) {
  m_caption->setObjectName(QStringLiteral("previewCaption"));
  m_caption->setTextFormat(Qt::PlainText);
  m_caption->setWordWrap(true);
  m_sheets->setObjectName(QStringLiteral("previewSheets"));
  m_sheets->setAccessibleName(tr("Booklet preview"));
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(margin, margin, margin, margin);
  column->setSpacing(gap);
  column->addWidget(m_caption);
  column->addWidget(m_sheets, 1);
  connect(&session, &PrintSession::changed, this, &BookletPreview::followSession);
  m_state = previewState(m_session, m_pageCount, m_pageSize);
  updateControls();
}

void BookletPreview::followSession() {
  PreviewState state = previewState(m_session, m_pageCount, m_pageSize);
  if (state == m_state) return;
  m_state = std::move(state);
  updateControls();
}

QString BookletPreview::caption() const {
  if (!m_state.booklet.enabled) {
    return tr("Booklet printing is off: pages are printed one after the other.");
  }
  if (m_state.sheets.isEmpty()) return tr("No page of the document is printed.");
  const int sheets = static_cast<int>(m_state.sheets.size());
  QStringList parts{
      m_state.isSample ? tr("The document's page count is not known; a sample of %1 pages is shown")
                             .arg(m_state.pages)
                       : tr("%1 pages on %2").arg(m_state.pages).arg(sheetsInWords(sheets))};
  if (!m_state.paperName.isNull()) parts << m_state.paperName;
  if (m_state.booklet.rightToLeft) parts << tr("read from right to left");
  if (m_state.booklet.creep != 0 && sheets > 1) {
    parts << tr("creep shown %1 times as large").arg(creepExaggeration);
  }
  return parts.join(QStringLiteral(" · "));
}

void BookletPreview::updateControls() {
  m_caption->setText(caption());
  m_caption->setAlignment(m_state.sheets.isEmpty() ? Qt::AlignCenter
                                                   : Qt::AlignLeft | Qt::AlignVCenter);
  m_sheets->setState(m_state);
  m_sheets->setVisible(!m_state.sheets.isEmpty());
  m_sheets->setAccessibleDescription(spokenSheets(m_state.sheets));
}

}  // namespace orvek
