// SPDX-License-Identifier: Apache-2.0
// A picture of the sheets as a booklet's pages will stand on them, drawn from the session's ticket.
#pragma once

#include <QSizeF>
#include <QWidget>

#include "host/preview/PreviewState.h"
#include "host/session/PrintSession.h"

class QLabel;

namespace orvek {

class SheetsView;

class BookletPreview final : public QWidget {
  Q_OBJECT

 public:
  /// `pageCount` 0: unknown, a sample is shown. `pageSizePoints` empty: the marked paper. Borrows
  /// the session, which must outlive the picture.
  BookletPreview(PrintSession &session, int pageCount, QSizeF pageSizePoints,
                 QWidget *parent = nullptr);

  /// What is shown.
  const PreviewState &state() const { return m_state; }

 private:
  void followSession();
  void updateControls();
  QString caption() const;

  PrintSession &m_session;
  int m_pageCount;
  QSizeF m_pageSize;
  PreviewState m_state;
  QLabel *m_caption;
  SheetsView *m_sheets;
};

}  // namespace orvek
