// SPDX-License-Identifier: Apache-2.0
// PDF documents of a test's own: each page carries its number as a colour, its edge as an outline,
// and a mark at its top.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "imposition/Geometry.h"

namespace orvek::test {

/// A page of such a document.
struct MarkedPage {
  /// As displayed.
  imposition::Size size{595, 842};
  /// How the page gets there: its /Rotate.
  int rotate = 0;
  /// Points that the media box has beyond the shown box on each side.
  double around = 0;
  /// The box that says which part of the media is shown.
  const char *shownBox = "CropBox";
};

/// What a page shows, as drawing operators in points from the lower left of the displayed page.
using PageDrawing = std::function<std::string(int number, imposition::Size size)>;

/// The bytes of a PDF file of these objects; the first is object 1, the catalog.
std::string pdfOf(const std::vector<std::string> &objects, const std::string &trailerExtras = {});

/// A stream object's text.
std::string streamOf(const std::string &contents, const std::string &dictionary = {});

/// A document of pages that are drawn so, numbered from 1.
std::string documentOf(const std::vector<MarkedPage> &pages, const PageDrawing &drawing);

/// A document of marked pages.
std::string markedDocument(const std::vector<MarkedPage> &pages);
std::string markedDocument(int pages);

/// The colour of a page's number, 0 to 255 each. Good for 1 to 125.
std::array<int, 3> colourOf(int page);

/// The number that a colour stands for, 0 for none.
int pageOf(int red, int green, int blue);

}  // namespace orvek::test
