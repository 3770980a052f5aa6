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

TEST_F(PresetFitTest, CallsAnOptionWhatItsPrinterCalledIt) {
  Preset preset = presetOf({{QStringLiteral("Glossy"), QStringLiteral("On")}});
  preset.titles = {{QStringLiteral("Glossy"), QStringLiteral("Glossy finish")}};
  const auto fit = fitPreset(preset, *printer);
  ASSERT_EQ(fit.misfits.size(), 1);
  EXPECT_EQ(fit.misfits[0].why, QStringLiteral("this printer has no option \"Glossy finish\""));
}

TEST_F(PresetFitTest, TakesOutTheBookletOfAPrinterThatMakesNone) {
  const auto small = PrinterDescription::open(orvekPPD(QStringLiteral("2120"))).take();
  Preset preset = presetOf({});
  preset.ticket.insert(QStringLiteral("OVKCreep"), QStringLiteral("3"));
  preset.ticket.insert(QStringLiteral("vendor"), QStringLiteral("1"));
  preset.ticket.insert(QStringLiteral("OVKEnableBooklet"), QStringLiteral("False"));
  EXPECT_EQ(linesOf(fitPreset(preset, *small)), QStringList());
  EXPECT_EQ(fitPreset(preset, *small).ticket, preset.ticket);
  preset.ticket.insert(QStringLiteral("OVKEnableBooklet"), QStringLiteral("True"));
  EXPECT_EQ(linesOf(fitPreset(preset, *small)),
            QStringList{QStringLiteral("OVKEnableBooklet=True: this printer makes no booklets")});
  EXPECT_EQ(fitPreset(preset, *small).ticket.keys(), QStringList{QStringLiteral("vendor")});
  EXPECT_TRUE(linesOf(fitPreset(preset, *printer)).isEmpty());
  EXPECT_EQ(fitPreset(preset, *printer).ticket.size(), 4);
}

TEST_F(PresetFitTest, TakesOutABookletInWhateverSpellingItIsAsked) {
  const auto small = PrinterDescription::open(orvekPPD(QStringLiteral("2120"))).take();
  Preset preset = presetOf({});
  preset.ticket.insert(QStringLiteral("ovkenablebooklet"), QStringLiteral("True"));
  preset.ticket.insert(QStringLiteral("OVKCREEP"), QStringLiteral("3"));
  const PresetFit fit = fitPreset(preset, *small);
  EXPECT_EQ(linesOf(fit),
            QStringList{QStringLiteral("OVKEnableBooklet=True: this printer makes no booklets")});
  EXPECT_TRUE(fit.ticket.isEmpty()) << fit.ticket.keys().join(u' ').toStdString();
}

}  // namespace
}  // namespace orvek::test
