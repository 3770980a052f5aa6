// SPDX-License-Identifier: Apache-2.0
// Writes PDF files by hand, so that a broken one can be written as well.

#include "tests/driver/MarkedDocument.h"

#include <cmath>
#include <cstdio>

namespace orvek::test {
namespace {

constexpr int steps = 5;
constexpr int darkest = 70;
constexpr int step = 40;
constexpr int nearEnough = 12;

std::string text(const char *format, auto... values) {
  std::array<char, 256> buffer{};
  std::snprintf(buffer.data(), buffer.size(), format, values...);
  return buffer.data();
}

/// Turns the page's own space so that what is drawn for the displayed page stands upright there.
std::string uprightFor(const MarkedPage &page) {
  const double width = page.size.width;
  const double height = page.size.height;
  switch (page.rotate) {
    case 90:
      return text("0 1 -1 0 %g 0 cm ", height);
    case 180:
      return text("-1 0 0 -1 %g %g cm ", width, height);
    case 270:
      return text("0 -1 1 0 0 %g cm ", width);
    default:
      return {};
  }
}

std::string marks(int number, imposition::Size size) {
  const auto [red, green, blue] = colourOf(number);
  const double width = size.width;
  const double height = size.height;
  return text("%g %g %g rg 0 0 %g %g re f ", red / 255.0, green / 255.0, blue / 255.0, width,
              height) +
         text("0 G 1 w 0.5 0.5 %g %g re S ", width - 1, height - 1) +
         text("0 g %g %g %g %g re f", width / 4, height * 0.9, width / 2, height / 20);
}

std::string contentsOf(int number, const MarkedPage &page, const PageDrawing &drawing) {
  return text("q 1 0 0 1 %g %g cm ", page.around, page.around) + uprightFor(page) +
         drawing(number, page.size) + " Q\n";
}

std::string pageObject(const MarkedPage &page, std::size_t contents) {
  const bool isSideways = page.rotate % 180 != 0;
  const double width = isSideways ? page.size.height : page.size.width;
  const double height = isSideways ? page.size.width : page.size.height;
  return text("<</Type/Page/Parent 2 0 R/Rotate %d/Contents %zu 0 R/Resources<<>>", page.rotate,
              contents) +
         text("/MediaBox[0 0 %g %g]", width + 2 * page.around, height + 2 * page.around) +
         text("/%s[%g %g %g %g]>>", page.shownBox, page.around, page.around, width + page.around,
              height + page.around);
}

}  // namespace

std::array<int, 3> colourOf(int page) {
  const int code = page - 1;
  return {darkest + step * (code % steps), darkest + step * (code / steps % steps),
          darkest + step * (code / steps / steps % steps)};
}

int pageOf(int red, int green, int blue) {
  int page = 1;
  int weight = 1;
  for (const int part : {red, green, blue}) {
    const int code = static_cast<int>(std::lround(double(part - darkest) / step));
    if (code < 0 || code >= steps || std::abs(part - darkest - code * step) > nearEnough) return 0;
    page += code * weight;
    weight *= steps;
  }
  return page;
}

std::string streamOf(const std::string &contents, const std::string &dictionary) {
  return "<<" + dictionary + "/Length " + std::to_string(contents.size()) + ">>\nstream\n" +
         contents + "\nendstream";
}

std::string pdfOf(const std::vector<std::string> &objects, const std::string &trailerExtras) {
  std::string file = "%PDF-1.4\n";
  std::string table = "0000000000 65535 f \n";
  for (std::size_t i = 0; i < objects.size(); ++i) {
    table += text("%010zu 00000 n \n", file.size());
    file += std::to_string(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
  }
  const std::string size = std::to_string(objects.size() + 1);
  return file + "xref\n0 " + size + "\n" + table + "trailer<</Size " + size + "/Root 1 0 R" +
         trailerExtras + ">>\nstartxref\n" + std::to_string(file.size()) + "\n%%EOF\n";
}

std::string documentOf(const std::vector<MarkedPage> &pages, const PageDrawing &drawing) {
  std::vector<std::string> objects{"<</Type/Catalog/Pages 2 0 R>>", ""};
  std::string kids;
  for (std::size_t i = 0; i < pages.size(); ++i) {
    kids += std::to_string(objects.size() + 1) + " 0 R ";
    objects.push_back(pageObject(pages[i], objects.size() + 2));
    objects.push_back(streamOf(contentsOf(static_cast<int>(i) + 1, pages[i], drawing)));
  }
  objects[1] = "<</Type/Pages/Count " + std::to_string(pages.size()) + "/Kids[" + kids + "]>>";
  return pdfOf(objects);
}

std::string markedDocument(const std::vector<MarkedPage> &pages) {
  return documentOf(pages, marks);
}

std::string markedDocument(int pages) {
  return markedDocument(std::vector<MarkedPage>(static_cast<std::size_t>(pages)));
}

}  // namespace orvek::test
