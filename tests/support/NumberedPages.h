// SPDX-License-Identifier: Apache-2.0
// Documents whose pages can be told apart by their looks: each is filled with a colour that stands
// for its number, and has a band in another shade along its top. Made, and found again on paper.
#pragma once

#include <QByteArray>
#include <QList>
#include <QRectF>
#include <QSizeF>
#include <optional>

namespace orvek::test {

/// A page to make. Points, y upwards as PDF has it.
struct NumberedPage {
  /// Of its media box.
  QSizeF size;
  /// Its /Rotate.
  int turn = 0;
  /// Its trim box; empty: none.
  QRectF trim;
  /// Its crop box; empty: none.
  QRectF crop;
};

/// At most 40 pages.
QByteArray numberedPdf(const QList<NumberedPage> &pages);

/// The same in PostScript, all pages of one size and unturned.
QByteArray numberedPostScript(int pages, QSizeF size);

/// A page as it was found. Points, y downwards from the top left corner; one point is one pixel.
struct FoundPage {
  int page = 0;
  /// The visible part.
  QRectF frame;
  /// Clockwise; nothing where the page's top is out of sight.
  std::optional<int> turn;
};

struct FoundSide {
  QSizeF size;
  /// By number.
  QList<FoundPage> pages;
};

/// Rasterises a PDF with pdftoppm and looks for numbered pages.
QList<FoundSide> findPages(const QString &pdf);

}  // namespace orvek::test
