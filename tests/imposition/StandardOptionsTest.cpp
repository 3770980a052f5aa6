// SPDX-License-Identifier: Apache-2.0
// Words of printers and of CUPS that come to the same.

#include "imposition/StandardOptions.h"

#include <gtest/gtest.h>

#include <map>

namespace orvek::imposition {
namespace {

ValueOf among(const std::map<std::string, std::string> &options) {
  return [options](const char *key) -> std::optional<std::string> {
    const auto found = options.find(key);
    return found == options.end() ? std::nullopt : std::optional(found->second);
  };
}

TEST(Duplexing, IsReadFromEveryPrintersOption) {
  EXPECT_EQ(readDuplexing(among({})), Duplexing::None);
  EXPECT_EQ(readDuplexing(among({{"Duplex", "None"}})), Duplexing::None);
  EXPECT_EQ(readDuplexing(among({{"Duplex", "SimplexTumble"}})), Duplexing::None);
  EXPECT_EQ(readDuplexing(among({{"JCLDuplex", "DuplexNoTumble"}})), Duplexing::LongEdge);
  EXPECT_EQ(readDuplexing(among({{"ARDuplex", "DuplexTumble"}})), Duplexing::ShortEdge);
  EXPECT_EQ(readDuplexing(among({{"EFDuplex", "FrontTumble"}})), Duplexing::ShortEdge);
  EXPECT_EQ(readDuplexing(among({{"EFDuplex", "FrontNoTumble"}})), Duplexing::LongEdge);
}

TEST(Duplexing, IsSaidByCupsWordWhereThePrinterSaysNothing) {
  EXPECT_EQ(readDuplexing(among({{"sides", "two-sided-long-edge"}})), Duplexing::LongEdge);
  EXPECT_EQ(readDuplexing(among({{"sides", "Two-Sided-Short-Edge"}})), Duplexing::ShortEdge);
  EXPECT_EQ(readDuplexing(among({{"sides", "one-sided"}})), Duplexing::None);
  EXPECT_EQ(readDuplexing(among({{"sides", "two-sided-long-edge"}, {"KD03Duplex", "None"}})),
            Duplexing::None);
}

TEST(Gray, IsReadFromColorOptions) {
  for (const char *choice : {"Gray", "Grayscale", "KGray", "FastGray", "Mono", "Black", "k"}) {
    EXPECT_TRUE(readsAsGray(among({{"ColorModel", choice}}))) << choice;
  }
  for (const char *choice : {"CMYK", "RGB", "Color", "None"}) {
    EXPECT_FALSE(readsAsGray(among({{"ColorMode", choice}}))) << choice;
  }
  EXPECT_TRUE(readsAsGray(among({{"print-color-mode", "monochrome"}})));
  EXPECT_FALSE(readsAsGray(among({{"print-color-mode", "monochrome"}, {"ColorModel", "CMYK"}})));
  EXPECT_FALSE(readsAsGray(among({})));
}

TEST(Order, IsReversedByEitherWordUnderEveryName) {
  EXPECT_EQ(readReversed(among({{"OutputOrder", "REVERSE"}})), true);
  EXPECT_EQ(readReversed(among({{"output-order", "reverse"}})), true);
  EXPECT_EQ(readReversed(among({{"page-delivery", "reverse-order"}})), true);
  EXPECT_EQ(readReversed(among({{"page-delivery", "reverse-order-face-up"}})), false);
  EXPECT_EQ(readReversed(among({{"OutputOrder", "normal"}, {"page-delivery", "reverse"}})), false);
  EXPECT_EQ(readReversed(among({})), std::nullopt);
}

}  // namespace
}  // namespace orvek::imposition
