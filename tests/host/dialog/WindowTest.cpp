// SPDX-License-Identifier: Apache-2.0
// The window itself: its size, its notices, and what happens to a job that fails.

#include <QFile>

#include "host/panels/PanelContainer.h"
#include "tests/host/dialog/DialogKit.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class Window : public DialogTest {};

TEST_F(Window, HasTheProgramsIconWhereverThatIsInstalled) {
  open();
  EXPECT_FALSE(dialog->windowIcon().isNull());
  EXPECT_FALSE(dialog->windowIcon().pixmap(48).isNull());
}

TEST_F(Window, KeepsTheSizeThatTheUserChose) {
  open();
  const QSize chosen = dialog->size() + QSize(120, 200);
  dialog->resize(chosen);
  QCoreApplication::processEvents();
  click("bookletChckBox");
  EXPECT_EQ(dialog->size(), chosen);
  click("bookletChckBox");
  EXPECT_EQ(dialog->size(), chosen);
}

TEST_F(Window, StaysOpenAndSaysWhyAJobFailed) {
  outputFile = folder.filePath(QStringLiteral("missing/out.ps"));
  open();
  click("printButton");
  ASSERT_TRUE(QTest::qWaitFor([&] { return notices().isVisible(); }, jobTimeout));
  EXPECT_TRUE(notices().sentences().first().contains(outputFile));
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_TRUE(find<QPushButton>("printButton")->isEnabled());
}

TEST_F(Window, GivesThePanelBackWhenItGoes) {
  open();
  PanelContainer *container = session->panels().first()->container();
  dialog.reset();
  ASSERT_EQ(session->panels().first()->container(), container);
  EXPECT_EQ(container->parentWidget(), nullptr);
  showWindow();
  EXPECT_NE(find<QWidget>("pdeView"), nullptr);
}

}  // namespace
