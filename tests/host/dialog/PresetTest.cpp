// SPDX-License-Identifier: Apache-2.0
// Presets in the window: saved, picked, renamed, deleted; one that does not fit.

#include <QAction>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
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
  clickItem("presetMenu", QStringLiteral("Booklets"));
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
