// SPDX-License-Identifier: Apache-2.0
// A preset on another printer: what fits is taken, what does not is said.

#include "host/presets/PresetFit.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

Preset presetOf(const QMap<QString, QString> &options) {
  return {QStringLiteral("p"), {}, options, {{QStringLiteral("OVKGutter"), QStringLiteral("9")}}};
}

QStringList linesOf(const PresetFit &fit) {
  QStringList lines;
  for (const PresetMisfit &misfit : fit.misfits) lines << misfit.line();
  return lines;
}

class PresetFitTest : public ::testing::Test {
 protected:
  std::shared_ptr<PrinterDescription> printer =
      PrinterDescription::open(orvekPPD(QStringLiteral("6180"))).take();
};

TEST_F(PresetFitTest, TakesWhatThePrinterHasAsItSpellsIt) {
  const auto fit =
      fitPreset(presetOf({{QStringLiteral("ovkfolding"), QStringLiteral("SADDLE")}}), *printer);
  EXPECT_EQ(fit.options.value(QStringLiteral("OVKFolding")), QStringLiteral("Saddle"));
  EXPECT_TRUE(fit.misfits.isEmpty());
  EXPECT_EQ(fit.ticket.size(), 1);
}

TEST_F(PresetFitTest, NamesAnOptionThatThePrinterLacks) {
  const auto fit =
      fitPreset(presetOf({{QStringLiteral("Glossy"), QStringLiteral("On")}}), *printer);
  EXPECT_EQ(linesOf(fit),
            QStringList{QStringLiteral("Glossy=On: this printer has no option \"Glossy\"")});
}

TEST_F(PresetFitTest, NamesAChoiceThatThePrinterLacksAndTakesTheRest) {
  const auto fit = fitPreset(presetOf({{QStringLiteral("OVKFolding"), QStringLiteral("Zigzag")},
                                       {QStringLiteral("PageSize"), QStringLiteral("A4")}}),
                             *printer);
  EXPECT_EQ(linesOf(fit), QStringList{QStringLiteral(
                              "OVKFolding=Zigzag: \"Folding\" of this printer has no choice "
                              "\"Zigzag\"")});
  EXPECT_EQ(fit.options,
            (QMap<QString, QString>{{QStringLiteral("PageSize"), QStringLiteral("A4")}}));
}

TEST_F(PresetFitTest, LeavesInstalledEquipmentAlone) {
  const auto fit = fitPreset(
      presetOf({{QStringLiteral("OVKOptionFinisher"), QStringLiteral("True")}}), *printer);
  EXPECT_TRUE(fit.options.isEmpty());
  ASSERT_EQ(fit.misfits.size(), 1);
  EXPECT_EQ(fit.misfits[0].why,
            QStringLiteral("\"Finisher\" is installed equipment, which a preset does not change"));
}

TEST_F(PresetFitTest, TakesOnlyTheTicketWithoutAPPD) {
  const auto fit = fitPreset(presetOf({{QStringLiteral("OVKFolding"), QStringLiteral("Saddle")}}),
                             PrinterDescription::none());
  EXPECT_TRUE(fit.options.isEmpty());
  EXPECT_EQ(fit.misfits.size(), 1);
  EXPECT_EQ(fit.ticket.size(), 1);
}

}  // namespace
}  // namespace orvek::test
