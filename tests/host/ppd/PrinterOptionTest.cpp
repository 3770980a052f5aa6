// SPDX-License-Identifier: Apache-2.0
// A printer's options as plain values.

#include <gmock/gmock.h>

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>

#include "host/ppd/PrinterDescription.h"
#include "platform/printing/PPD.h"
#include "tests/host/ppd/TestPrinters.h"

namespace orvek::test {
namespace {

QStringList keywordsOf(const PrinterOptionGroup &group) {
  QStringList keywords;
  for (const PrinterOption &option : group.options) keywords << option.keyword();
  return keywords;
}

QStringList keywordsOf(const QList<PrinterChoice> &choices) {
  QStringList keywords;
  for (const PrinterChoice &choice : choices) keywords << choice.keyword;
  return keywords;
}

/// The finisher's PPD with the last option of its equipment in a group within the group.
std::shared_ptr<PrinterDescription> openWithSubgroup(const QTemporaryDir &folder) {
  QFile original(testPpd(QStringLiteral("finisher.ppd")));
  QFile changed(folder.filePath(QStringLiteral("subgroup.ppd")));
  EXPECT_TRUE(original.open(QIODevice::ReadOnly) && changed.open(QIODevice::WriteOnly));
  QByteArray text = original.readAll();
  const qsizetype end = text.indexOf("*CloseGroup: InstallableOptions");
  const qsizetype last = text.lastIndexOf("*OpenUI", end);
  EXPECT_GT(last, 0);
  text.insert(end, "*CloseSubGroup: Trays\n");
  text.insert(last, "*OpenSubGroup: Trays/Trays\n");
  changed.write(text);
  changed.close();
  return PrinterDescription::open(changed.fileName()).take();
}

TEST(PrinterOptions, AreFoundInAnyCaseAndGiveThePpdsSpelling) {
  const auto printer = openTestPpd(QStringLiteral("finisher.ppd"));
  const PrinterOption option = printer->option("ovkSTAPLING");
  ASSERT_TRUE(option);
  EXPECT_EQ(option.keyword(), "OVKStapling");
  EXPECT_EQ(option.text(), "Stapling");
  EXPECT_EQ(option.defaultChoice(), "None");
  EXPECT_EQ(option.kind(), OptionKind::PickOne);
  EXPECT_EQ(option.spelled("FRONT"), "Front");
  EXPECT_EQ(option.choice("front")->text, "1 Staple");
  EXPECT_EQ(keywordsOf(printer->choices("OVKStapling")), keywordsOf(option.choices()));
  EXPECT_EQ(option.choices().first().keyword, "None");
}

TEST(PrinterOptions, AreInertWhereThePpdLacksThem) {
  const auto printer = openTestPpd(QStringLiteral("finisher.ppd"));
  for (const PrinterOption &absent : {PrinterOption(), printer->option("Missing"),
                                      PrinterDescription::none().option("PageSize")}) {
    EXPECT_FALSE(absent);
    EXPECT_TRUE(absent.keyword().isNull());
    EXPECT_TRUE(absent.text().isNull());
    EXPECT_TRUE(absent.defaultChoice().isNull());
    EXPECT_TRUE(absent.spelled("A4").isNull());
    EXPECT_FALSE(absent.choice("A4"));
    EXPECT_FALSE(absent.isSwitch());
    EXPECT_TRUE(absent.choices().isEmpty());
  }
  EXPECT_TRUE(PrinterDescription::none().options().isEmpty());
  EXPECT_TRUE(PrinterDescription::none().attribute("NickName").isNull());
  EXPECT_TRUE(PrinterDescription::none().modelName().isNull());
}

TEST(PrinterOptions, KnowSwitchesFromOtherChoices) {
  const auto printer = openTestPpd(QStringLiteral("finisher.ppd"));
  EXPECT_TRUE(printer->option("OVKOptionFinisher").isSwitch());
  EXPECT_EQ(printer->option("OVKOptionFinisher").kind(), OptionKind::Boolean);
  EXPECT_FALSE(printer->option("OVKStapling").isSwitch());
  EXPECT_EQ(openTestPpd(QStringLiteral("values.ppd"))->option("Stamps").kind(),
            OptionKind::PickMany);
}

TEST(PrinterOptions, GiveACustomValueAsItWasGiven) {
  const auto printer = openTestPpd(QStringLiteral("values.ppd"));
  EXPECT_EQ(printer->option("Gamma").spelled("custom.1.5"), "custom.1.5");
  EXPECT_EQ(printer->option("Gamma").spelled("CUSTOM"), "Custom");
  EXPECT_EQ(printer->option("Gamma").choice("Custom.1.5")->keyword, "Custom");
}

TEST(PrinterOptions, StandInThePpdsGroups) {
  const auto printer = openTestPpd(QStringLiteral("finisher.ppd"));
  const QList<PrinterOptionGroup> groups = printer->options();
  const auto equipment = std::find_if(groups.begin(), groups.end(), [](const auto &group) {
    return keywordsOf(group).contains("OVKOptionFinisher");
  });
  ASSERT_NE(equipment, groups.end());
  for (const QString &keyword : keywordsOf(*equipment)) EXPECT_TRUE(printer->isEquipment(keyword));
  EXPECT_FALSE(keywordsOf(*equipment).contains("OVKStapling"));
}

TEST(PrinterAttributes, AreTheValuesOfLines) {
  const auto printer = openTestPpd(QStringLiteral("finisher.ppd"));
  EXPECT_EQ(printer->attribute("NickName"), "Orvek Test 6180, 1.0");
  EXPECT_TRUE(printer->attribute("Missing").isNull());
}

TEST(InstalledEquipment, IsTheGroupOfInstallableOptions) {
  const auto printer = openTestPpd(QStringLiteral("finisher.ppd"));
  EXPECT_TRUE(printer->isEquipment("OVKOptionFinisher"));
  EXPECT_TRUE(printer->isEquipment("ovkoptionpunch"));
  EXPECT_FALSE(printer->isEquipment("OVKStapling"));
  EXPECT_FALSE(printer->isEquipment("Unknown"));
  EXPECT_FALSE(PrinterDescription::none().isEquipment("OVKOptionFinisher"));
}

TEST(InstalledEquipment, IncludesAGroupWithinTheGroup) {
  const QTemporaryDir folder;
  const auto printer = openWithSubgroup(folder);
  ASSERT_TRUE(printer);
  const auto plain = openTestPpd(QStringLiteral("finisher.ppd"));
  for (const PrinterOptionGroup &group : plain->options()) {
    for (const QString &keyword : keywordsOf(group)) {
      EXPECT_EQ(printer->isEquipment(keyword), keyword.startsWith("OVKOption"))
          << keyword.toStdString();
    }
  }
}

// libcups 2.4 sorts a subgroup's options into the group above; its interface allows for both.
TEST(InstalledEquipment, IncludesASubgroupThatTheParserKeepsApart) {
  const auto printer = openTestPpd(QStringLiteral("finisher.ppd"));
  const auto groups = printer->lend()->groups;
  const auto equipment = std::find_if(
      groups, groups + printer->lend()->num_groups,
      [](const ppd_group_t &group) { return qstrcmp(group.name, "InstallableOptions") == 0; });
  ppd_group_t inner = *equipment;
  qstrncpy(inner.text, "Trays", sizeof inner.text);
  inner.options = equipment->options + --equipment->num_options;
  inner.num_options = 1;
  equipment->subgroups = &inner;
  equipment->num_subgroups = 1;
  EXPECT_TRUE(printer->isEquipment(inner.options->keyword));
  const QList<PrinterOptionGroup> shown = printer->options();
  const QString text = QString::fromUtf8(equipment->text) + QStringLiteral(" – Trays");
  EXPECT_THAT(shown, testing::Contains(testing::Field(&PrinterOptionGroup::text, text)));
  equipment->subgroups = nullptr;
  equipment->num_subgroups = 0;
  ++equipment->num_options;
}

}  // namespace
}  // namespace orvek::test
