// SPDX-License-Identifier: Apache-2.0
// Everything the preview shows, computed from a session in one place. Draws nothing.
#pragma once

#include <QList>
#include <QSizeF>
#include <QString>

#include "host/preview/Imposition.h"

namespace orvek {

class PrintSession;

/// Lengths are points.
struct PreviewState {
  BookletSettings booklet;
  QList<ImposedSheet> sheets;  ///< empty where no booklet is printed
  QSizeF page;                 ///< one page of the document
  QSizeF paper{1, 1};          ///< the paper that is printed on, in either orientation
  QString paperName;           ///< for people; null: unknown
  int pages = 0;               ///< that are printed
  bool isSample = false;       ///< the document's own page count is unknown

  bool operator==(const PreviewState &) const = default;
};

/// Small creeps would hide in a picture: it shows this many times what will be printed.
inline constexpr int creepExaggeration = 3;

/// `pageCount` 0: unknown. `pageSize` empty: as large as the marked paper.
PreviewState previewState(const PrintSession &session, int pageCount, QSizeF pageSize);

/// "Sheet 1: front 8 and 1, back 2 and 7", a sentence for each sheet; for screen readers.
QString spokenSheets(const QList<ImposedSheet> &sheets);

}  // namespace orvek
