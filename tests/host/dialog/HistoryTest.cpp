// SPDX-License-Identifier: Apache-2.0
// Undo and Redo in the window: keys, buttons, and the list of what was done.

#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>
#include <QSpinBox>
#include <QTabWidget>
#include <QToolButton>

#include "tests/host/dialog/DialogKit.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class WindowHistory : public DialogTest {
 protected:
  void SetUp() override { open(); }

  static void undo() { press(Qt::Key_Z, Qt::ControlModifier); }
  static void redo() { press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }

  QStringList listed(const char *button) const {
    QMenu *menu = find<QToolButton>(button)->menu();
    Q_EMIT menu->aboutToShow();
    QStringList texts;
    for (const QAction *action : menu->actions()) texts << action->text();
    return texts;
  }

  QString ticket(const char *key) const {
    return session->ticket().value(QLatin1String(key)).toString();
  }
};

TEST_F(WindowHistory, GoesBackAndForwardByKeys) {
  click("bookletChckBox");
  find<QComboBox>("punchPopup")->setFocus();
  press(Qt::Key_Down);
  ASSERT_NE(session->marks().marked("OVKPunching"), "None");
  undo();
  EXPECT_EQ(session->marks().marked("OVKPunching"), "None");
  EXPECT_EQ(find<QComboBox>("punchPopup")->currentIndex(), 0);
  undo();
  EXPECT_FALSE(find<QCheckBox>("bookletChckBox")->isChecked());
  EXPECT_NE(ticket("OVKEnableBooklet"), "True");
  redo();
  EXPECT_TRUE(find<QCheckBox>("bookletChckBox")->isChecked());
  EXPECT_EQ(ticket("OVKEnableBooklet"), "True");
  redo();
  EXPECT_EQ(find<QComboBox>("punchPopup")->currentIndex(), 1);
}

TEST_F(WindowHistory, TakesBackANumberFromInsideItsField) {
  click("bookletChckBox");
  auto *field = find<QLineEdit>("gutterTxtBox");
  const QString before = field->text();
  field->setFocus();
  field->selectAll();
  QTest::keyClicks(field, QStringLiteral("36"));
  QCoreApplication::processEvents();
  ASSERT_EQ(ticket("OVKGutter"), "36");
  undo();
  EXPECT_EQ(field->text(), before);
  EXPECT_EQ(ticket("OVKEnableBooklet"), "True");
  redo();
  EXPECT_EQ(field->text(), "36");
}

TEST_F(WindowHistory, TakesBackTypingInAFieldFirst) {
  find<QTabWidget>("pages")->setCurrentIndex(0);
  QCoreApplication::processEvents();
  clickItem("orientation", QStringLiteral("Landscape"));
  auto *copies = find<QSpinBox>("copies");
  copies->setFocus();
  copies->selectAll();
  QTest::keyClicks(copies, QStringLiteral("5"));
  ASSERT_EQ(session->job().settings().copies, 5);
  undo();
  EXPECT_EQ(session->job().settings().copies, 1);
  EXPECT_EQ(session->job().settings().orientation, Orientation::Landscape);
}

TEST_F(WindowHistory, ListsWhatWasDoneAndGoesAsFarAsIsPicked) {
  EXPECT_FALSE(find<QToolButton>("historyUndo")->isEnabled());
  click("bookletChckBox");
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  EXPECT_EQ(listed("historyUndo"), (QStringList{"Folding: Saddle fold", "Booklet: On"}));
  find<QToolButton>("historyUndo")->menu()->actions().at(1)->trigger();
  EXPECT_FALSE(find<QCheckBox>("bookletChckBox")->isChecked());
  EXPECT_EQ(session->marks().marked("OVKFolding"), "None");
  EXPECT_EQ(listed("historyRedo"), (QStringList{"Booklet: On", "Folding: Saddle fold"}));
  click("historyRedo");
  EXPECT_TRUE(find<QCheckBox>("bookletChckBox")->isChecked());
  EXPECT_EQ(session->marks().marked("OVKFolding"), "None");
}

TEST_F(WindowHistory, SaysWhatTheNextStepTakesBack) {
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  auto *button = find<QToolButton>("historyUndo");
  EXPECT_EQ(button->accessibleName(), "Undo");
  EXPECT_EQ(button->accessibleDescription(), "Folding: Saddle fold");
  EXPECT_TRUE(button->toolTip().contains("Undo: Folding: Saddle fold"));
}

}  // namespace
