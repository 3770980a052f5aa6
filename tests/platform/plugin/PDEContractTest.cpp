// SPDX-License-Identifier: Apache-2.0
// The callback object's vocabulary: an absent host gives nothing and hears nothing.

#include <gtest/gtest.h>

#include <QPair>

#include "platform/plugin/PDEPlugin.h"
#include "platform/plugin/PDEPluginCallback.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

class Host : public PDEPluginCallback {
 public:
  ppd_file_t *ppdFile() override { return &ppd; }
  PMPrintSession printSession() override { return &session; }
  PMPrintSettings printSettings() override { return &settings; }
  bool willChangePPDOptionKeyValue_ppdChoice(const QString &key, const QString &choice) override {
    announced << qMakePair(key, choice);
    return true;
  }

  ppd_file_t ppd = {};
  PrintSessionHandle session;
  PrintSettings settings{nullptr};
  QList<QPair<QString, QString>> announced;
};

class ResizingHost : public Host, public PDEPanelResizeObserver {
 public:
  void panelViewDidResize() override { ++resized; }
  int resized = 0;
};

TEST(PluginCallback, HandsOutWhatTheHostLends) {
  Host host;
  EXPECT_EQ(ppdFile(&host), &host.ppd);
  EXPECT_EQ(printSession(&host), &host.session);
  EXPECT_EQ(printSettings(&host), &host.settings);
}

TEST(PluginCallback, PassesAnnouncementsOnWithNullKeptApartFromEmpty) {
  Host host;
  willChangePPDOption(&host, QStringLiteral("OVKFolding"), QStringLiteral("Saddle"));
  willChangePPDOption(&host, QStringLiteral("OutputBin"), QString());
  willChangePPDOption(&host, QStringLiteral("OutputBin"), QStringLiteral(""));
  ASSERT_EQ(host.announced.size(), 3);
  EXPECT_EQ(host.announced[0], qMakePair(QStringLiteral("OVKFolding"), QStringLiteral("Saddle")));
  EXPECT_TRUE(host.announced[1].second.isNull());
  EXPECT_FALSE(host.announced[2].second.isNull());
}

TEST(PluginCallback, TellsAHostThatCanResizeFromOneThatCannot) {
  Host fixed;
  ResizingHost resizing;
  EXPECT_FALSE(respondsToPanelViewDidResize(&fixed));
  EXPECT_TRUE(respondsToPanelViewDidResize(&resizing));
}

TEST(PluginCallback, ReportsAResizeOnlyToAHostThatAnswersIt) {
  Host fixed;
  ResizingHost resizing;
  panelViewDidResize(&fixed);
  panelViewDidResize(&resizing);
  EXPECT_EQ(resizing.resized, 1);
}

TEST(PluginCallback, IsInertWhenAbsent) {
  EXPECT_EQ(ppdFile(nullptr), nullptr);
  EXPECT_EQ(printSession(nullptr), nullptr);
  EXPECT_EQ(printSettings(nullptr), nullptr);
  EXPECT_FALSE(respondsToPanelViewDidResize(nullptr));
  willChangePPDOption(nullptr, QStringLiteral("OVKFolding"), QStringLiteral("Saddle"));
  panelViewDidResize(nullptr);
}

}  // namespace
}  // namespace orvek::test
