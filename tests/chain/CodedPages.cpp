// SPDX-License-Identifier: Apache-2.0
// Red and green are the number's two digits, blue is the part of the page.

#include "tests/chain/CodedPages.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace orvek::test {
namespace {

constexpr int digits = 8;
constexpr int darkest = 30;
constexpr int digitStep = 24;
constexpr int darkestPart = 60;
constexpr int partStep = 60;
constexpr int parts = 3;
constexpr int nearEnough = 8;
constexpr double whole = 255;
constexpr double outlineWidth = 2;

struct Colour {
  double red = 0;
  double green = 0;
  double blue = 0;
};

Colour colourOf(int number, PagePart part) {
  const int code = number - 1;
  const int low = darkest + digitStep * (code % digits);
  const int high = darkest + digitStep * (code / digits);
  return {low / whole, high / whole, (darkestPart + partStep * static_cast<int>(part)) / whole};
}

std::optional<int> digitOf(int value, int least, int step, int count) {
  const int digit = (value - least + step / 2) / step;
  if (value < least - nearEnough || digit < 0 || digit >= count) return std::nullopt;
  if (std::abs(value - least - digit * step) > nearEnough) return std::nullopt;
  return digit;
}

/// How a language sets a colour and fills a rectangle.
struct Operators {
  const char *colour;
  const char *fill;
};
constexpr Operators inPdf{"%g %g %g rg ", "%g %g %g %g re f "};
constexpr Operators inPostScript{"%g %g %g setrgbcolor ", "%g %g %g %g rectfill "};

std::string filled(const Operators &operators, const Colour &colour,
                   const imposition::Frame &raised) {
  std::array<char, 256> buffer{};
  const int length = std::snprintf(buffer.data(), buffer.size(), operators.colour, colour.red,
                                   colour.green, colour.blue);
  std::snprintf(buffer.data() + length, buffer.size() - static_cast<std::size_t>(length),
                operators.fill, raised.x, raised.y, raised.width, raised.height);
  return buffer.data();
}

std::string drawn(const Operators &operators, int number, imposition::Size size) {
  const double edge = std::min({outlineWidth, size.width / 8, size.height / 8});
  const double width = size.width - 2 * edge;
  const double half = size.height / 2 - edge;
  return filled(operators, colourOf(number, PagePart::Outline), {0, 0, size.width, size.height}) +
         filled(operators, colourOf(number, PagePart::Lower), {edge, edge, width, half}) +
         filled(operators, colourOf(number, PagePart::Upper), {edge, edge + half, width, half});
}

}  // namespace

std::string codedPage(int number, imposition::Size size) {
  return drawn(inPdf, number, size);
}

std::string codedPostScript(int pages, imposition::Size size) {
  std::string text = "%!PS-Adobe-3.0\n%%BoundingBox: 0 0 " +
                     std::to_string(static_cast<int>(size.width)) + ' ' +
                     std::to_string(static_cast<int>(size.height)) +
                     "\n%%Pages: " + std::to_string(pages) + "\n%%EndComments\n";
  for (int page = 1; page <= pages; ++page) {
    const std::string number = std::to_string(page);
    text.append("%%Page: ").append(number).append(" ").append(number).append("\n");
    text.append(drawn(inPostScript, page, size)).append("\nshowpage\n");
  }
  return text + "%%Trailer\n%%EOF\n";
}

std::optional<Spot> spotOf(int red, int green, int blue) {
  const auto low = digitOf(red, darkest, digitStep, digits);
  const auto high = digitOf(green, darkest, digitStep, digits);
  const auto part = digitOf(blue, darkestPart, partStep, parts);
  if (!low || !high || !part) return std::nullopt;
  return Spot{*high * digits + *low + 1, static_cast<PagePart>(*part)};
}

}  // namespace orvek::test
