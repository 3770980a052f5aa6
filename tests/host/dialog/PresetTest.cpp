// SPDX-License-Identifier: Apache-2.0
// Presets in the window: saved, picked, renamed, deleted; one that does not fit.

#include <QAction>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QSpinBox>
#include <QTimer>

#include "host/dialog/PresetChooser.h"
#include "tests/host/dialog/DialogKit.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class WindowPreset : public DialogTest {
 protected:
  void SetUp() override {
    store = std::make_shared<PresetStore>(folder.filePath(QStringLiteral("data")));
    prepare = [this](DialogSetup &setup) { setup.presets = store; };
  }

  QAction *action(const char *text) const {
    for (QAction *each : dialog->findChild<PresetChooser *>()->findChildren<QAction *>()) {
      if (each->text() == QString::fromUtf8(text)) return each;
    }
    return nullptr;
  }

  // Types into the question that comes up, and accepts it.
  static void answerWith(const QString &name) {
    QTimer::singleShot(50, qApp, [name] {
      auto *question = qobject_cast<QInputDialog *>(QApplication::activeModalWidget());
      ASSERT_NE(question, nullptr);
      auto *field = question->findChild<QLineEdit *>();
      field->selectAll();
      QTest::keyClicks(field, name);
      QTest::keyClick(field, Qt::Key_Return);
    });
  }

  // What the question that comes up proposes; it is declined.
  static std::shared_ptr<QString> seeProposal() {
    auto proposal = std::make_shared<QString>();
    QTimer::singleShot(50, qApp, [proposal] {
      auto *question = qobject_cast<QInputDialog *>(QApplication::activeModalWidget());
      ASSERT_NE(question, nullptr);
      *proposal = question->textValue();
      QTest::keyClick(question, Qt::Key_Escape);
    });
    return proposal;
  }

  void saveAs(const char *name) {
    answerWith(QString::fromUtf8(name));
    action("&Save As…")->trigger();
    // The question had the keyboard.
    dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }

  std::string shown() const { return find<QComboBox>("presetMenu")->currentText().toStdString(); }

  void openOnQueue() {
    prepare = [this](DialogSetup &setup) {
      setup.presets = store;
      setup.destination = QStringLiteral("office");
    };
    open();
  }

  static void answerYes() {
    QTimer::singleShot(50, qApp, [] {
      auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
      ASSERT_NE(question, nullptr);
      QTest::mouseClick(question->button(QMessageBox::Yes), Qt::LeftButton);
    });
  }

  std::shared_ptr<PresetStore> store;
};

TEST_F(WindowPreset, BringsBackWhatWasSaved) {
  open();
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  answerWith(QStringLiteral("Booklets"));
  action("&Save As…")->trigger();
  EXPECT_EQ(store->list().names, QStringList(QStringLiteral("Booklets")));
  clickItem("foldingPopup", QStringLiteral("Off"));
  clickItem("presetMenu", QStringLiteral("Booklets (changed)"));
  EXPECT_EQ(session->marks().marked(QStringLiteral("OVKFolding")), QStringLiteral("Saddle"));
  EXPECT_EQ(find<QComboBox>("foldingPopup")->currentText(), QStringLiteral("Saddle fold"));
}

TEST_F(WindowPreset, CanBeRenamedAndDeleted) {
  open();
  answerWith(QStringLiteral("One"));
  action("&Save As…")->trigger();
  answerWith(QStringLiteral("Two"));
  action("&Rename…")->trigger();
  EXPECT_EQ(store->list().names, QStringList(QStringLiteral("Two")));
  answerYes();
  action("&Delete")->trigger();
  EXPECT_TRUE(store->list().names.isEmpty());
  EXPECT_FALSE(action("&Delete")->isEnabled());
}

TEST_F(WindowPreset, IsMarkedAsChangedUntilTheChangeIsUndone) {
  open();
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  saveAs("Booklets");
  EXPECT_EQ(shown(), "Booklets");
  clickItem("foldingPopup", QStringLiteral("Off"));
  EXPECT_EQ(shown(), "Booklets (changed)");
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(shown(), "Booklets");
  press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(shown(), "Booklets (changed)");
  clickItem("presetMenu", QStringLiteral("Booklets (changed)"));
  EXPECT_EQ(shown(), "Booklets");
  EXPECT_EQ(session->marks().marked(QStringLiteral("OVKFolding")), QStringLiteral("Saddle"));
}

TEST_F(WindowPreset, IsNotChangedByAnotherNumberOfCopies) {
  open();
  saveAs("Plain");
  find<QSpinBox>("copies")->setFocus();
  press(Qt::Key_Up);
  ASSERT_EQ(session->job().settings().copies, 2);
  EXPECT_EQ(shown(), "Plain");
}

TEST_F(WindowPreset, ComesAndGoesWithUndoAndRedo) {
  Preset preset;
  preset.name = QStringLiteral("Folded");
  preset.options.insert(QStringLiteral("OVKFolding"), QStringLiteral("Saddle"));
  ASSERT_TRUE(store->save(preset));
  open();
  clickItem("presetMenu", QStringLiteral("Folded"));
  EXPECT_EQ(shown(), "Folded");
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(shown(), "None");
  press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(shown(), "Folded");
}

TEST_F(WindowPreset, IsProposedWhenItIsSavedAgain) {
  open();
  saveAs("Booklets");
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  ASSERT_EQ(shown(), "Booklets (changed)");
  const auto proposal = seeProposal();
  action("&Save As…")->trigger();
  EXPECT_EQ(proposal->toStdString(), "Booklets");
  answerWith(QStringLiteral("Renamed"));
  action("&Rename…")->trigger();
  EXPECT_EQ(shown(), "Renamed (changed)");
}

TEST_F(WindowPreset, CanNotBeCalledWhatTheListCallsItsOwnEntries) {
  open();
  saveAs("none");
  EXPECT_TRUE(store->list().names.isEmpty());
  ASSERT_TRUE(notices().isVisible());
  EXPECT_TRUE(notices().sentences().first().contains(QStringLiteral("\"none\"")));
  saveAs("Other");
  answerWith(QStringLiteral("Last used"));
  action("&Rename…")->trigger();
  EXPECT_EQ(store->list().names, QStringList(QStringLiteral("Other")));
}

TEST_F(WindowPreset, ThatTheSessionBeganWithIsShown) {
  Preset preset;
  preset.name = QStringLiteral("Folded");
  ASSERT_TRUE(store->save(preset));
  const auto applied = std::make_shared<AppliedPreset>();
  applied->entry = {PresetEntry::Kind::Saved, preset.name};
  prepare = [this, applied](DialogSetup &setup) {
    setup.presets = store;
    applied->after = settingsInForce(*session);
    setup.applied = applied;
  };
  open();
  EXPECT_EQ(shown(), "Folded");
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  EXPECT_EQ(shown(), "Folded (changed)");
}

TEST_F(WindowPreset, OfLastSettingsIsForgottenByThoseWhoWantNoneRemembered) {
  ASSERT_TRUE(store->saveLastUsed(QStringLiteral("office"), {}));
  openOnQueue();
  auto *menu = find<QComboBox>("presetMenu");
  clickItem("presetMenu", QStringLiteral("Last used"));
  EXPECT_EQ(shown(), "Last used");
  QAction *remember = action("Remember &Last Settings");
  ASSERT_TRUE(remember->isChecked());
  remember->trigger();
  EXPECT_FALSE(store->remembers());
  EXPECT_FALSE(store->lastUsed(QStringLiteral("office")).value().has_value());
  EXPECT_LT(menu->findText(QStringLiteral("Last used")), 0);
  EXPECT_EQ(shown(), "None");
  remember->trigger();
  EXPECT_TRUE(store->remembers());
}

TEST_F(WindowPreset, SaysWhatThePrinterCanNotTake) {
  Preset preset;
  preset.name = QStringLiteral("Stapled");
  preset.options.insert(QStringLiteral("OVKStapling"), QStringLiteral("Dual"));
  ASSERT_TRUE(store->save(preset));
  open(QStringLiteral("Orvek-2120"));
  clickItem("presetMenu", QStringLiteral("Stapled"));
  EXPECT_TRUE(notices().isVisible());
  EXPECT_EQ(notices().sentences().size(), 2);
}

TEST_F(WindowPreset, ThatIsDamagedIsNamed) {
  Preset preset;
  preset.name = QStringLiteral("Broken");
  ASSERT_TRUE(store->save(preset));
  QDirIterator saved(folder.filePath(QStringLiteral("data")), QDir::Files,
                     QDirIterator::Subdirectories);
  ASSERT_TRUE(saved.hasNext());
  QFile file(saved.next());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("{");
  file.close();
  open();
  ASSERT_TRUE(notices().isVisible());
  EXPECT_TRUE(notices().sentences().first().contains(QStringLiteral("Broken")));
}

}  // namespace
