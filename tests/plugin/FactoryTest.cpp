// SPDX-License-Identifier: Apache-2.0
// The factory: which panels it makes for whom.

#include <gtest/gtest.h>

#include <QJsonObject>
#include <QLibrary>

#include "panel/OrvekFinishing.h"
#include "plugin/OrvekFinishingPlugin.h"
#include "tests/panel/PanelFixture.h"

using namespace orvek;

namespace {

const QVariant printDialog{QLatin1String(printDialogPanelType)};

std::shared_ptr<Bundle> builtBundle() {
  return Bundle::atPath(QStringLiteral(ORVEK_BUNDLE_DIR), {QStringLiteral("en")});
}

TEST(Factory, MakesOnePanelForThePrintDialogType) {
  OrvekFinishingPlugin factory;
  const auto bundle = builtBundle();
  EXPECT_TRUE(factory.initWithBundle(bundle.get()));
  const auto panels = factory.PDEPanelsForType_withHostInfo(printDialog, nullptr);
  ASSERT_EQ(panels.size(), 1);
  EXPECT_EQ(panels.first()->panelName(), QStringLiteral("Finishing"));
}

TEST(Factory, MakesADistinctPanelOnEachCall) {
  OrvekFinishingPlugin factory;
  const auto bundle = builtBundle();
  factory.initWithBundle(bundle.get());
  const auto first = factory.PDEPanelsForType_withHostInfo(printDialog, nullptr);
  const auto second = factory.PDEPanelsForType_withHostInfo(printDialog, nullptr);
  ASSERT_EQ(first.size(), 1);
  ASSERT_EQ(second.size(), 1);
  EXPECT_NE(first.first(), second.first());
}

TEST(Factory, KeepsNoReferenceToThePanelsItMade) {
  OrvekFinishingPlugin factory;
  factory.initWithBundle(nullptr);
  auto panels = factory.PDEPanelsForType_withHostInfo(printDialog, nullptr);
  const std::weak_ptr<PDEPanel> panel = panels.first();
  panels.clear();
  EXPECT_TRUE(panel.expired());
}

TEST(Factory, KnowsNoOtherType) {
  OrvekFinishingPlugin factory;
  const QVariantList others{QStringLiteral("bdb091f4-e57f-11d3-b5cc-0050e4603277"),
                            QString(),
                            QStringLiteral("BDB091F4-E57F-11D3-B5CC-0050E4603278"),
                            QByteArray(printDialogPanelType),
                            42,
                            QVariant()};
  for (const QVariant &other : others) {
    EXPECT_TRUE(factory.PDEPanelsForType_withHostInfo(other, nullptr).isEmpty())
        << other.toString().toStdString();
  }
}

TEST(Factory, WithoutBundleMakesPanelsThatFindNeitherNameNorView) {
  OrvekFinishingPlugin factory;
  EXPECT_TRUE(factory.initWithBundle(nullptr));
  const auto panels = factory.PDEPanelsForType_withHostInfo(printDialog, nullptr);
  ASSERT_EQ(panels.size(), 1);
  EXPECT_TRUE(panels.first()->panelName().isNull());
  EXPECT_EQ(panels.first()->panelView(), nullptr);
}

TEST(Factory, PassesTheHostOnToThePanel) {
  const auto ppd = test::openPPD(test::fullPrinter());
  const auto host = std::make_shared<test::RecordingHost>(ppd.get(), nullptr);
  OrvekFinishingPlugin factory;
  const auto panels = factory.PDEPanelsForType_withHostInfo(printDialog, host);
  ASSERT_EQ(panels.size(), 1);
  EXPECT_EQ(panels.first()->supportedPPDOptionKeys().size(), 5);
}

TEST(Bundle, NamesTheFactoryThatItsCodeExports) {
  const auto info = builtBundle()->infoDictionary();
  ASSERT_TRUE(info);
  const QString name = info->value(QStringLiteral("PrincipalClass")).toString();
  EXPECT_EQ(name, QStringLiteral("OrvekFinishingPlugin"));
  QLibrary code(QStringLiteral(ORVEK_BUNDLE_DIR "/") +
                info->value(QStringLiteral("Executable")).toString());
  ASSERT_TRUE(code.load()) << code.errorString().toStdString();
  EXPECT_NE(code.resolve(QByteArray(factoryFunctionPrefix + name.toLatin1()).constData()), nullptr);
}

}  // namespace
