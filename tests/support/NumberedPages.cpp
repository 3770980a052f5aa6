// SPDX-License-Identifier: Apache-2.0
// Red carries the number, green tells the band from the rest, blue that it is a page at all.

#include "tests/support/NumberedPages.h"

#include <QBuffer>
#include <QImage>
#include <QMap>
#include <QProcess>
#include <cmath>
#include <cstdlib>

namespace orvek::test {
namespace {

constexpr int shadesPerPage = 6;
constexpr int pageGreen = 64;
constexpr int bandGreen = 192;
constexpr int pageBlue = 128;
constexpr int tolerance = 2;
constexpr double bandShare = 0.125;
constexpr double whole = 255;

QByteArray box(const char *name, const QRectF &rect) {
  if (rect.isEmpty()) return {};
  return QByteArray(name) + '[' + QByteArray::number(rect.left()) + ' ' +
         QByteArray::number(rect.top()) + ' ' + QByteArray::number(rect.right()) + ' ' +
         QByteArray::number(rect.bottom()) + ']';
}

QByteArray fill(int red, int green, const QRectF &rect) {
  QByteArray text;
  for (const int shade : {red, green, pageBlue}) text += QByteArray::number(shade / whole) + ' ';
  text += "rg ";
  for (const double number : {rect.x(), rect.y(), rect.width(), rect.height()}) {
    text += QByteArray::number(number) + ' ';
  }
  return text + "re f\n";
}

// The band lies along what is the top once the page is turned.
QRectF bandOf(const QRectF &shown, int turn) {
  const double thickness = bandShare * std::min(shown.width(), shown.height());
  switch (turn) {
    case 90:
      return {shown.left(), shown.top(), thickness, shown.height()};
    case 180:
      return {shown.left(), shown.top(), shown.width(), thickness};
    case 270:
      return {shown.right() - thickness, shown.top(), thickness, shown.height()};
    default:
      return {shown.left(), shown.bottom() - thickness, shown.width(), thickness};
  }
}

QByteArray contents(const NumberedPage &page, int number) {
  const QRectF media(QPointF(0, 0), page.size);
  QRectF shown = page.crop.isEmpty() ? media : page.crop;
  if (!page.trim.isEmpty()) shown = page.trim;
  const int red = number * shadesPerPage;
  return fill(red, pageGreen, shown) + fill(red, bandGreen, bandOf(shown, page.turn));
}

class Writer {
 public:
  void add(const QByteArray &body) {
    m_places << m_bytes.size();
    m_bytes += QByteArray::number(m_places.size()) + " 0 obj\n" + body + "\nendobj\n";
  }

  QByteArray finish() {
    const qsizetype table = m_bytes.size();
    m_bytes += "xref\n0 " + QByteArray::number(m_places.size() + 1) + "\n0000000000 65535 f \n";
    for (const qsizetype place : m_places) {
      m_bytes += QByteArray::number(place).rightJustified(10, '0') + " 00000 n \n";
    }
    m_bytes += "trailer<</Size " + QByteArray::number(m_places.size() + 1) +
               "/Root 1 0 R>>\nstartxref\n" + QByteArray::number(table) + "\n%%EOF\n";
    return m_bytes;
  }

 private:
  QByteArray m_bytes = "%PDF-1.4\n";
  QList<qsizetype> m_places;
};

struct Seen {
  QRect page;
  QRect band;
};

bool isNear(int one, int other) {
  return std::abs(one - other) <= tolerance;
}

void look(QMap<int, Seen> *seen, QRgb colour, QPoint at) {
  const int number = qRound(static_cast<double>(qRed(colour)) / shadesPerPage);
  if (number < 1 || !isNear(qRed(colour), number * shadesPerPage)) return;
  if (!isNear(qBlue(colour), pageBlue)) return;
  const bool isBand = isNear(qGreen(colour), bandGreen);
  if (!isBand && !isNear(qGreen(colour), pageGreen)) return;
  Seen &page = (*seen)[number];
  page.page |= QRect(at, QSize(1, 1));
  if (isBand) page.band |= QRect(at, QSize(1, 1));
}

std::optional<int> turnOf(const Seen &seen) {
  if (seen.band.isEmpty()) return {};
  const QPointF step = QRectF(seen.band).center() - QRectF(seen.page).center();
  if (std::abs(step.x()) > std::abs(step.y())) return step.x() > 0 ? 90 : 270;
  return step.y() > 0 ? 180 : 0;
}

FoundSide sideIn(const QImage &image) {
  QMap<int, Seen> seen;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) look(&seen, image.pixel(x, y), {x, y});
  }
  FoundSide side{QSizeF(image.size()), {}};
  for (auto page = seen.begin(); page != seen.end(); ++page) {
    side.pages.append({page.key(), QRectF(page->page), turnOf(*page)});
  }
  return side;
}

}  // namespace

QByteArray numberedPdf(const QList<NumberedPage> &pages) {
  Writer writer;
  writer.add("<</Type/Catalog/Pages 2 0 R>>");
  QByteArray kids;
  for (qsizetype i = 0; i < pages.size(); ++i) kids += QByteArray::number(3 + 2 * i) + " 0 R ";
  writer.add("<</Type/Pages/Count " + QByteArray::number(pages.size()) + "/Kids[" + kids + "]>>");
  for (qsizetype i = 0; i < pages.size(); ++i) {
    const NumberedPage &page = pages[i];
    const QByteArray drawn = contents(page, static_cast<int>(i) + 1);
    writer.add("<</Type/Page/Parent 2 0 R/Resources<<>>" +
               box("/MediaBox", QRectF(QPointF(0, 0), page.size)) + box("/CropBox", page.crop) +
               box("/TrimBox", page.trim) + "/Rotate " + QByteArray::number(page.turn) +
               "/Contents " + QByteArray::number(4 + 2 * i) + " 0 R>>");
    writer.add("<</Length " + QByteArray::number(drawn.size()) + ">>stream\n" + drawn +
               "\nendstream");
  }
  return writer.finish();
}

QByteArray numberedPostScript(int pages, QSizeF size) {
  const QByteArray width = QByteArray::number(size.width());
  const QByteArray height = QByteArray::number(size.height());
  QByteArray script = "%!PS-Adobe-3.0\n%%BoundingBox: 0 0 " + width + ' ' + height +
                      "\n%%Pages: " + QByteArray::number(pages) +
                      "\n%%EndComments\n/rg{setrgbcolor}bind def/re{rectfill}bind def/f{}def\n";
  for (int page = 1; page <= pages; ++page) {
    const QByteArray number = QByteArray::number(page);
    script += "%%Page: " + number + ' ' + number + '\n' + contents({size, 0, {}, {}}, page) +
              "showpage\n";
  }
  return script + "%%Trailer\n%%EOF\n";
}

QList<FoundSide> findPages(const QString &pdf) {
  QProcess tool;
  tool.start(QStringLiteral("pdftoppm"),
             {QStringLiteral("-r"), QStringLiteral("72"), QStringLiteral("-aa"),
              QStringLiteral("no"), QStringLiteral("-aaVector"), QStringLiteral("no"), pdf});
  tool.waitForFinished(-1);
  QByteArray pictures = tool.readAllStandardOutput();
  QBuffer buffer(&pictures);
  buffer.open(QIODevice::ReadOnly);
  QList<FoundSide> sides;
  QImage image;
  while (!buffer.atEnd() && image.load(&buffer, "ppm")) sides.append(sideIn(image));
  return sides;
}

}  // namespace orvek::test
