// SPDX-License-Identifier: Apache-2.0
// Makes form XObjects of pages.

#include "driver/PageForm.h"

#include <algorithm>
#include <cmath>

namespace orvek::driver {
namespace {

using imposition::Size;
using Rectangle = QPDFObjectHandle::Rectangle;

constexpr int fullTurn = 360;
constexpr int quarterTurn = 90;

Size sizeOf(const Rectangle &box) {
  return {box.urx - box.llx, box.ury - box.lly};
}

// Beyond this many points a number's fraction is lost, and with it every place on the page.
constexpr double largestCoordinate = 1e9;

bool isUsable(const Rectangle &box) {
  const auto isNear = [](double value) { return std::abs(value) <= largestCoordinate; };
  return isNear(box.llx) && isNear(box.lly) && isNear(box.urx) && isNear(box.ury) &&
         imposition::isDrawable(sizeOf(box));
}

Rectangle rectangle(QPDFObjectHandle box) {
  if (!box.isRectangle()) return {0, 0, 0, 0};
  const Rectangle given = box.getArrayAsRectangle();
  return {std::min(given.llx, given.urx), std::min(given.lly, given.ury),
          std::max(given.llx, given.urx), std::max(given.lly, given.ury)};
}

Rectangle visibleBox(QPDFPageObjectHelper page, Size paper) {
  Rectangle media = rectangle(page.getMediaBox());
  if (!isUsable(media)) media = {0, 0, paper.width, paper.height};
  const Rectangle crop = rectangle(page.getCropBox());
  const Rectangle common{std::max(media.llx, crop.llx), std::max(media.lly, crop.lly),
                         std::min(media.urx, crop.urx), std::min(media.ury, crop.ury)};
  return isUsable(common) ? common : media;
}

QPDFObjectHandle contentsOf(QPDFPageObjectHelper page) {
  QPDFObjectHandle contents = page.getObjectHandle().getKey("/Contents");
  const bool isOneStream = contents.isArray() && contents.getArrayNItems() == 1;
  return isOneStream ? contents.getArrayItem(0) : contents;
}

/// Streams in an array are one stream in pieces that may break anywhere, so they are joined.
QPDFObjectHandle formStream(QPDFPageObjectHelper page) {
  QPDFObjectHandle contents = contentsOf(page);
  if (contents.isStream()) return contents.copyStream();
  if (!contents.isArray() || contents.getArrayNItems() == 0) return QPDFObjectHandle::newNull();
  return page.getFormXObjectForPage(false);
}

QPDFObjectHandle dictionaryOr(QPDFObjectHandle object, const QPDFObjectHandle &other) {
  return object.isDictionary() ? object : other;
}

void describeForm(QPDFObjectHandle dictionary, QPDFPageObjectHelper page, const Rectangle &box) {
  // A stream that served as contents may have had other uses, too.
  for (const char *key : {"/Matrix", "/OC", "/Ref", "/OPI", "/StructParent", "/StructParents"}) {
    dictionary.removeKey(key);
  }
  dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
  dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
  dictionary.replaceKey("/BBox", QPDFObjectHandle::newArray(box));
  dictionary.replaceKey("/Resources", dictionaryOr(page.getAttribute("/Resources", false),
                                                   QPDFObjectHandle::newDictionary()));
  const QPDFObjectHandle group = page.getObjectHandle().getKey("/Group");
  dictionary.replaceKey("/Group", dictionaryOr(group, QPDFObjectHandle::newNull()));
}

QPDFObjectHandle makeForm(const QPDFPageObjectHelper &page, const Rectangle &box) {
  QPDFObjectHandle form = formStream(page);
  if (form.isStream()) describeForm(form.getDict(), page, box);
  return form;
}

/// What a form is made of, as text. Empty for contents that are no shared object.
std::string nameOfParts(QPDFPageObjectHelper page, const Rectangle &box) {
  QPDFObjectHandle contents = contentsOf(page);
  if (!contents.isStream()) return {};
  return contents.getObjGen().unparse(' ') + page.getAttribute("/Resources", false).unparse() +
         page.getObjectHandle().getKey("/Group").unparse() +
         QPDFObjectHandle::newArray(box).unparse();
}

QPDFObjectHandle madeForm(const QPDFPageObjectHelper &page, const Rectangle &box, FormsMade *made) {
  const std::string parts = nameOfParts(page, box);
  if (parts.empty()) return makeForm(page, box);
  const auto [form, isNew] = made->try_emplace(parts);
  if (isNew) form->second = makeForm(page, box);
  return form->second;
}

bool isSideways(int turn) {
  return turn % (2 * quarterTurn) != 0;
}

}  // namespace

int turnOf(QPDFPageObjectHelper page) {
  QPDFObjectHandle rotate = page.getAttribute("/Rotate", false);
  if (!rotate.isInteger()) return 0;
  const auto degrees = static_cast<int>(rotate.getIntValue() % fullTurn);
  const int turn = (degrees + fullTurn) % fullTurn;
  return turn % quarterTurn == 0 ? turn : 0;
}

QPDFMatrix turned(int degrees, Size size) {
  switch (degrees) {
    case quarterTurn:
      return {0, -1, 1, 0, 0, size.width};
    case 2 * quarterTurn:
      return {-1, 0, 0, -1, size.width, size.height};
    case 3 * quarterTurn:
      return {0, 1, -1, 0, size.height, 0};
    default:
      return {};
  }
}

PageForm formOf(const QPDFPageObjectHelper &page, Size paper, FormsMade *made) {
  const Rectangle box = visibleBox(page, paper);
  const Size size = sizeOf(box);
  const int turn = turnOf(page);
  PageForm result;
  result.size = isSideways(turn) ? Size{size.height, size.width} : size;
  result.toDisplayed = turned(turn, size);
  result.toDisplayed.translate(-box.llx, -box.lly);
  result.form = madeForm(page, box, made);
  return result;
}

}  // namespace orvek::driver
