// SPDX-License-Identifier: Apache-2.0
// Panels as one: opened, driven, found in, let go.

#include "host/panels/PanelSet.h"

#include <gtest/gtest.h>

#include "host/panels/DefaultSummary.h"
#include "host/panels/PanelContainer.h"
#include "tests/host/panels/RecordingPlugin.h"
#include "tests/host/ppd/TestPrinters.h"

namespace orvek::test {
namespace {

class Listener final : public PanelListener {
 public:
  bool choiceAnnounced(const QString &option, const QString &) override {
    announced << option;
    return false;
  }
  void panelResized() override { ++resized; }

  QStringList announced;
  int resized = 0;
};

class PanelSetTest : public testing::Test {
 protected:
  PanelSetTest() { marks.markDefaults(); }

  static std::shared_ptr<LoadedPlugin> loaded(std::unique_ptr<PDEPlugin> factory) {
    auto plugin = std::make_shared<LoadedPlugin>();
    plugin->factory = std::move(factory);
    return plugin;
  }

  RecordingPlugin *addPlugin() {
    auto factory = std::make_unique<RecordingPlugin>();
    RecordingPlugin *plugin = factory.get();
    plugins.push_back(loaded(std::move(factory)));
    return plugin;
  }

  std::shared_ptr<PrinterDescription> printer = openTestPpd(QStringLiteral("finisher.ppd"));
  Marks marks{*printer};
  std::shared_ptr<Ticket> ticket = std::make_shared<Ticket>();
  Listener listener;
  PluginList plugins;
  PanelSet panels{listener, {printer->lend(), nullptr, ticket}, true};
};

TEST_F(PanelSetTest, OpensPanelsInThePluginsOrder) {
  RecordingPlugin *one = addPlugin();
  addPlugin();
  panels.open(plugins);
  EXPECT_EQ(panels.places().size(), 2);
  EXPECT_EQ(&panels.first()->panel(), one->last.lock().get());
  EXPECT_EQ(panels.claimedOptions(),
            (QStringList{"OVKStapling", "OVKFolding", "OVKStapling", "OVKFolding"}));
}

TEST_F(PanelSetTest, OpensNoneWithoutAPpd) {
  RecordingPlugin *plugin = addPlugin();
  PanelSet none(listener, {}, true);
  none.open(plugins);
  EXPECT_EQ(none.first(), nullptr);
  EXPECT_TRUE(none.places().isEmpty());
  EXPECT_TRUE(none.summary().isEmpty());
  EXPECT_TRUE(plugin->calls->isEmpty());
}

TEST_F(PanelSetTest, PassesEachCallToEveryPanel) {
  const QList<RecordingPlugin *> all{addPlugin(), addPlugin()};
  panels.open(plugins);
  for (RecordingPlugin *plugin : all) plugin->calls->clear();
  panels.loadViews();
  panels.restore();
  panels.save();
  panels.willShow();
  for (const RecordingPlugin *plugin : all) {
    EXPECT_EQ(*plugin->calls, (QStringList{"panelView", "restore", "save", "willShow"}));
  }
}

TEST_F(PanelSetTest, HasOnlyThosePanelsRestoreThatClaimAnOption) {
  const RecordingPlugin *plugin = addPlugin();
  panels.open(plugins);
  plugin->calls->clear();
  panels.restoreClaiming({"OVKPunching"});
  EXPECT_TRUE(plugin->calls->isEmpty());
  panels.restoreClaiming({"OVKPunching", "ovkfolding"});
  EXPECT_EQ(*plugin->calls, QStringList{"restore"});
}

TEST_F(PanelSetTest, PutsThePanelsSummariesTogether) {
  addPlugin();
  addPlugin();
  panels.open(plugins);
  EXPECT_EQ(panels.summary(), (SummaryText{{"Folding", "None"}, {"Folding", "None"}}));
}

TEST_F(PanelSetTest, MakesRoomForAViewThatGrew) {
  const RecordingPlugin *plugin = addPlugin();
  panels.open(plugins);
  plugin->last.lock()->resizeTo(310, 210);
  EXPECT_EQ(listener.resized, 1);
  panels.makeRoom();
  EXPECT_EQ(panels.places().first().container->size(), QSize(310, 210));
}

TEST_F(PanelSetTest, MakesPanelsAgainAfterLettingThemGo) {
  const RecordingPlugin *plugin = addPlugin();
  panels.open(plugins);
  plugin->calls->clear();
  panels.reopen();
  EXPECT_EQ(plugin->calls->mid(0, 2), (QStringList{"destroyed", "made"}));
  EXPECT_EQ(panels.places().size(), 1);
}

TEST_F(PanelSetTest, LeavesAnInertCallbackBehindWhenItCloses) {
  const RecordingPlugin *plugin = addPlugin();
  panels.open(plugins);
  const std::shared_ptr<RecordingPanel> panel = plugin->last.lock();
  panels.close();
  listener.announced.clear();
  EXPECT_FALSE(panel->host().willChangePPDOptionKeyValue_ppdChoice("OVKFolding", "Saddle"));
  EXPECT_EQ(panel->host().ppdFile(), nullptr);
  EXPECT_TRUE(listener.announced.isEmpty());
  EXPECT_EQ(panels.first(), nullptr);
}

TEST_F(PanelSetTest, FindsAControlByItsNameWithItsPanelsView) {
  plugins.push_back(
      std::make_shared<LoadedPlugin>(loadPlugin(QStringLiteral(ORVEK_BUNDLE_DIR)).take()));
  addPlugin();
  panels.open(plugins);
  const PanelControl found = panels.findControl("foldingPopup");
  ASSERT_NE(found.control, nullptr);
  EXPECT_EQ(found.panelView, panels.first()->view());
  EXPECT_EQ(panels.findControl("flyPopup").control, nullptr);
}

TEST_F(PanelSetTest, LearnsTheDefaultSummaryFromPanelsThatLeaveNoTrace) {
  const RecordingPlugin *plugin = addPlugin();
  marks.mark("OVKFolding", "Saddle");
  panels.open(plugins);
  const MarksSnapshot before = marks.snapshot();
  listener.announced.clear();
  DefaultSummary standard;
  EXPECT_FALSE(standard.lines());
  standard.learn(panels, marks);
  ASSERT_TRUE(standard.lines());
  EXPECT_EQ(*standard.lines(), (SummaryText{{"Folding", "None"}}));
  EXPECT_EQ(marks.snapshot(), before);
  EXPECT_TRUE(listener.announced.isEmpty());
  EXPECT_EQ(plugin->calls->last(), "destroyed");
}

}  // namespace
}  // namespace orvek::test
