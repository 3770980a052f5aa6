// SPDX-License-Identifier: Apache-2.0
// Writes what a side shows as drawing operators.

#include "driver/SheetContents.h"

#include <qpdf/QUtil.hh>

#include <string>

namespace orvek::driver {
namespace {

using imposition::Face;
using imposition::Frame;
using imposition::PlacedPage;
using imposition::Size;

constexpr double borderWidth = 0.5;
constexpr int digits = 5;

/// Frames grow downwards from the top, drawing goes upwards from the bottom.
double lowerEdge(const Frame &frame, Size side) {
  return side.height - frame.bottom();
}

std::string number(double value) {
  return QUtil::double_to_string(value, digits) + ' ';
}

std::string rectangle(double x, double y, double width, double height) {
  return number(x) + number(y) + number(width) + number(height) + "re ";
}

std::string clip(const Frame &frame, Size side) {
  return rectangle(frame.x, lowerEdge(frame, side), frame.width, frame.height) + "W n\n";
}

std::string border(const Frame &frame, Size side) {
  return number(borderWidth) + "w 0 G " +
         rectangle(frame.x + borderWidth / 2, lowerEdge(frame, side) + borderWidth / 2,
                   frame.width - borderWidth, frame.height - borderWidth) +
         "S\n";
}

QPDFMatrix placeOf(const PlacedPage &placed, const PageForm &page, Size side) {
  QPDFMatrix matrix;
  matrix.translate(placed.frame.x, lowerEdge(placed.frame, side));
  const double scale = placed.frame.width / page.size.width;
  matrix.scale(scale, scale);
  matrix.concat(page.toDisplayed);
  return matrix;
}

std::string nameOf(const PlacedPage &placed) {
  return "/P" + std::to_string(placed.page);
}

bool hasRoomForBorder(const PlacedPage &placed) {
  return placed.border && placed.frame.width > borderWidth && placed.frame.height > borderWidth;
}

std::string draw(const PlacedPage &placed, const PageForm &page, Size side) {
  std::string text = "q " + clip(placed.clip, side);
  if (page.hasContents()) {
    text += "q " + placeOf(placed, page, side).unparse() + " cm " + nameOf(placed) + " Do Q\n";
  }
  if (hasRoomForBorder(placed)) text += border(placed.frame, side);
  return text + "Q\n";
}

QPDFObjectHandle mediaBox(Size paper) {
  return QPDFObjectHandle::newArray(QPDFObjectHandle::Rectangle(0, 0, paper.width, paper.height));
}

}  // namespace

QPDFObjectHandle pageOf(QPDF &document, const imposition::Side &side, Face face,
                        const SheetPaper &paper, std::span<const PageForm> pages) {
  const int turn = imposition::turnOnPaper(paper.paper, face);
  std::string contents = turned(turn, paper.side).unparse() + " cm\n";
  QPDFObjectHandle forms = QPDFObjectHandle::newDictionary();
  for (const PlacedPage &placed : side.pages) {
    const PageForm &page = pages[static_cast<std::size_t>(placed.page) - 1];
    contents += draw(placed, page, paper.side);
    if (page.hasContents()) forms.replaceKey(nameOf(placed), page.form);
  }
  QPDFObjectHandle resources = QPDFObjectHandle::newDictionary();
  resources.replaceKey("/XObject", forms);
  QPDFObjectHandle result = QPDFObjectHandle::newDictionary();
  result.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
  result.replaceKey("/MediaBox", mediaBox(paper.paper));
  result.replaceKey("/Resources", resources);
  result.replaceKey("/Contents", QPDFObjectHandle::newStream(&document, contents));
  return document.makeIndirectObject(result);
}

}  // namespace orvek::driver
