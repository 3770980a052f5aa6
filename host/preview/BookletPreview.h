// SPDX-License-Identifier: Apache-2.0
// A picture of the sheets as a booklet's pages will stand on them, drawn from the session's ticket.
#pragma once

#include <QSizeF>
#include <QWidget>

#include "host/session/PrintSession.h"

namespace orvek {

class BookletPreview final : public QWidget {
  Q_OBJECT

 public:
  /// `pageCount` 0: unknown, a sample is shown. `pageSizePoints` empty: the marked paper. Borrows
  /// the session, which must outlive the picture.
  BookletPreview(PrintSession &session, int pageCount, QSizeF pageSizePoints,
                 QWidget *parent = nullptr);
};

}  // namespace orvek
