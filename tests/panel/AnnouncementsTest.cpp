// SPDX-License-Identifier: Apache-2.0
// The exact order in which a host hears things, over a whole session.

#include "tests/panel/PanelFixture.h"

using namespace orvek;
using namespace orvek::test;

namespace {

using Announcements = PanelFixture;

TEST_F(Announcements, LoadingTheViewAnnouncesNothing) {
  open(fullPrinter());
  EXPECT_TRUE(host->announced.isEmpty());
}

TEST_F(Announcements, ASessionIsHeardInOrder) {
  ticket->setValue(QStringLiteral("OVKJog"), QStringLiteral("True"));
  open(fullPrinter());
  panel->restoreValuesAndReturnError(nullptr);
  panel->willShow();
  pick("staplingPopup", 1);
  pick("foldingPopup", 2);
  pick("foldingPopup", 0);
  click("offsetChckBox", stateOff);
  panel->saveValuesAndReturnError(nullptr);
  EXPECT_EQ(asText(host->announced),
            QStringLiteral("OVKStapling=- OVKFolding=- OVKPunching=- OutputBin=- OVKJog=True "
                           "OVKStapling=Front OVKFolding=None OVKFolding=Saddle OVKStapling=None "
                           "OVKFolding=None OVKJog=False"));
}

TEST_F(Announcements, TheResizesOfASessionAreCounted) {
  open(fullPrinter());
  const auto resizing = std::static_pointer_cast<ResizingHost>(host);
  EXPECT_EQ(resizing->resized, 0);
  panel->restoreValuesAndReturnError(nullptr);
  EXPECT_EQ(resizing->resized, 1);
  panel->willShow();
  EXPECT_EQ(resizing->resized, 2);
  click("bookletChckBox", stateOn);
  EXPECT_EQ(resizing->resized, 3);
}

TEST_F(Announcements, APrinterWithoutBookletNeverResizes) {
  PPDText text;
  text.option(staplingOption());
  open(text);
  show();
  EXPECT_EQ(std::static_pointer_cast<ResizingHost>(host)->resized, 0);
}

}  // namespace
