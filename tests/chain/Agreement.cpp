// SPDX-License-Identifier: Apache-2.0
// Takes each printed side in hand as the preview says that it is held, then compares.

#include "tests/chain/Agreement.h"

#include <QFile>
#include <QJsonArray>
#include <algorithm>
#include <cmath>
#include <optional>

#include "tests/chain/PaperLook.h"
#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

using imposition::Frame;
using imposition::Size;

constexpr double tolerance = 2;
constexpr double tooSmallToSee = 3;
constexpr int wholeTurn = 360;
constexpr int quarter = 90;

struct SaidSide {
  int sheet = 0;
  QString face;
  SeenSide side;
};

QString text(const Frame &frame) {
  return QString::asprintf("[%g %g %g %g]", frame.x, frame.y, frame.width, frame.height);
}

QString text(Size size) {
  return QString::asprintf("%g x %g", size.width, size.height);
}

SaidSide readSide(const QJsonObject &json) {
  const auto number = [](const QJsonArray &array, int i) { return array[i].toDouble(); };
  SaidSide said{json["sheet"].toInt(), json["side"].toString(), {}};
  const QJsonArray size = json["size"].toArray();
  said.side.paper = {number(size, 0), number(size, 1)};
  for (const auto &value : json["pages"].toArray()) {
    const QJsonObject page = value.toObject();
    const QJsonArray frame = page["frame"].toArray();
    said.side.pages.push_back(
        {page["page"].toInt(),
         {number(frame, 0), number(frame, 1), number(frame, 2), number(frame, 3)},
         page["turn"].toInt()});
  }
  return said;
}

const SeenPage *pageIn(const SeenSide &side, int number) {
  const auto found = std::find_if(side.pages.begin(), side.pages.end(),
                                  [number](const SeenPage &page) { return page.page == number; });
  return found == side.pages.end() ? nullptr : &*found;
}

bool isNear(const Frame &one, const Frame &other) {
  return std::abs(one.x - other.x) <= tolerance && std::abs(one.y - other.y) <= tolerance &&
         std::abs(one.right() - other.right()) <= tolerance &&
         std::abs(one.bottom() - other.bottom()) <= tolerance;
}

bool isNear(Size one, Size other) {
  return std::abs(one.width - other.width) <= tolerance &&
         std::abs(one.height - other.height) <= tolerance;
}

bool isSeen(const SeenPage &said) {
  return std::min(said.frame.width, said.frame.height) > tooSmallToSee;
}

void comparePage(const SeenPage &said, const SeenPage *seen, QStringList *found) {
  const QString page = QStringLiteral("page %1 ").arg(said.page);
  if (seen == nullptr) {
    if (isSeen(said)) *found << page + QStringLiteral("at %1 is not there").arg(text(said.frame));
    return;
  }
  if (!isNear(said.frame, seen->frame)) {
    *found << page + QStringLiteral("at %1 stands at %2").arg(text(said.frame), text(seen->frame));
  }
  if (seen->turn >= 0 && said.turn != seen->turn) {
    *found << page +
                  QStringLiteral("turned by %1 stands turned by %2").arg(said.turn).arg(seen->turn);
  }
}

QStringList compareHeld(const SeenSide &said, const SeenSide &seen) {
  QStringList found;
  if (!isNear(said.paper, seen.paper)) {
    found << QStringLiteral("a side of %1 is %2").arg(text(said.paper), text(seen.paper));
  }
  for (const SeenPage &page : said.pages) comparePage(page, pageIn(seen, page.page), &found);
  for (const SeenPage &page : seen.pages) {
    if (pageIn(said, page.page) == nullptr) {
      found << QStringLiteral("page %1 stands at %2").arg(page.page).arg(text(page.frame));
    }
  }
  return found;
}

/// How far the paper is turned to be held so that the side's first page stands upright; nothing
/// where no page tells.
std::optional<int> turnToHold(const SeenSide &said, const SeenSide &seen) {
  for (const SeenPage &page : said.pages) {
    const SeenPage *there = pageIn(seen, page.page);
    if (there == nullptr || there->turn < 0) continue;
    const int against = page.turn - said.pages.front().turn;
    return (against - there->turn + 2 * wholeTurn) % wholeTurn;
  }
  return std::nullopt;
}

QStringList compareSide(const SeenSide &said, const SeenSide &seen) {
  if (const auto turn = turnToHold(said, seen)) return compareHeld(said, turned(seen, *turn));
  const QStringList asItIs = compareHeld(said, seen);
  for (int turn = 0; turn < wholeTurn; turn += quarter) {
    if (compareHeld(said, turned(seen, turn)).isEmpty()) return {};
  }
  return asItIs;
}

/// Which sheet and which of its sides comes next.
void compareSheets(const std::vector<SaidSide> &sides, const PaperSides &paper,
                   QStringList *found) {
  int sheet = 0;
  bool isFront = false;
  for (std::size_t i = 0; i < sides.size(); ++i) {
    // Where a second document begins only the preview knows.
    const bool beginsDocument = paper.documents > 1 && sides[i].face == QLatin1String("front");
    isFront = !paper.isTwoSided || !isFront || beginsDocument;
    if (isFront) ++sheet;
    const QString face = QLatin1String(isFront ? "front" : "back");
    if (sides[i].sheet == sheet && sides[i].face == face) continue;
    *found << QStringLiteral("side %1 is the %2 of sheet %3, not the %4 of sheet %5")
                  .arg(i + 1)
                  .arg(face)
                  .arg(sheet)
                  .arg(sides[i].face)
                  .arg(sides[i].sheet);
    return;
  }
}

int numberBehind(const QByteArray &printed, const QByteArray &word, int absent) {
  const qsizetype at = printed.lastIndexOf(word);
  return at < 0 ? absent : printed.mid(at + word.size(), 6).simplified().split(' ')[0].toInt();
}

}  // namespace

SeenSide turned(SeenSide side, int degrees) {
  for (; degrees > 0; degrees -= quarter) {
    for (SeenPage &page : side.pages) {
      const Frame from = page.frame;
      page.frame = {side.paper.height - from.bottom(), from.x, from.height, from.width};
      if (page.turn >= 0) page.turn = (page.turn + quarter) % wholeTurn;
    }
    std::swap(side.paper.width, side.paper.height);
  }
  return side;
}

PaperSides paperIn(const QString &printed) {
  PaperSides paper;
  if (!QFile::exists(printed)) return paper;
  const QByteArray bytes = contentsOf(printed);
  paper.isTwoSided = bytes.contains("%%BeginFeature: *Duplex Duplex");
  paper.repeats = numberBehind(bytes, "%RBIBeginNonPPDFeature: *NumCopies ", 1);
  paper.sides = lookForCodedPages(printed);
  return paper;
}

QStringList differences(const QJsonObject &preview, const PaperSides &paper) {
  std::vector<SaidSide> sides;
  for (const auto &side : preview["sides"].toArray()) sides.push_back(readSide(side.toObject()));
  const auto copies = static_cast<std::size_t>(preview["copies"].toInt());
  if (sides.size() * copies != paper.sides.size()) {
    return {QStringLiteral("%1 times %2 sides are %3")
                .arg(copies)
                .arg(sides.size())
                .arg(paper.sides.size())};
  }
  QStringList found;
  compareSheets(sides, paper, &found);
  const auto repeats = static_cast<std::size_t>(paper.repeats);
  for (std::size_t i = 0; i < paper.sides.size(); ++i) {
    const std::size_t side = i / repeats % sides.size();
    for (const QString &difference : compareSide(sides[side].side, paper.sides[i])) {
      found << QStringLiteral("side %1: %2").arg(side + 1).arg(difference);
    }
  }
  return found;
}

}  // namespace orvek::test
