// SPDX-License-Identifier: Apache-2.0
// The window without eyes and without a mouse.

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>

#include "host/jobs/FilterChain.h"
#include "tests/host/dialog/DialogKit.h"
#include "tests/host/dialog/Languages.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class Access : public DialogTest {
 protected:
  void SetUp() override {
    auto store = std::make_shared<PresetStore>(folder.filePath(QStringLiteral("data")));
    prepare = [store](DialogSetup &setup) { setup.presets = store; };
  }

  bool isControl(const QWidget *widget) const {
    // Parts of another control speak through it.
    const QWidget *parent = widget->parentWidget();
    if (qobject_cast<const QComboBox *>(parent) || qobject_cast<const QAbstractSpinBox *>(parent) ||
        qobject_cast<const QTabBar *>(parent) || qobject_cast<const QLineEdit *>(parent)) {
      return false;
    }
    return qobject_cast<const QAbstractButton *>(widget) ||
           qobject_cast<const QComboBox *>(widget) || qobject_cast<const QLineEdit *>(widget) ||
           qobject_cast<const QAbstractSlider *>(widget) ||
           qobject_cast<const QAbstractSpinBox *>(widget) ||
           qobject_cast<const QAbstractItemView *>(widget);
  }

  QStringList nameless() const {
    QStringList found;
    for (QWidget *widget : dialog->findChildren<QWidget *>()) {
      if (!isControl(widget) || !widget->isVisibleTo(dialog.get())) continue;
      if (widget->inherits("QScrollBar") || widget->inherits("QHeaderView")) continue;
      QAccessibleInterface *speech = QAccessible::queryAccessibleInterface(widget);
      if (speech == nullptr || speech->text(QAccessible::Name).isEmpty()) {
        found << QString::fromLatin1(widget->metaObject()->className()) + ' ' +
                     widget->objectName();
      }
    }
    return found;
  }
};

TEST_F(Access, EveryControlOfEveryPageHasAName) {
  open();
  click("bookletChckBox");
  auto *pages = find<QTabWidget>("pages");
  for (int page = 0; page < pages->count(); ++page) {
    pages->setCurrentIndex(page);
    QCoreApplication::processEvents();
    EXPECT_EQ(nameless().join(QStringLiteral(", ")), QString()) << page;
  }
}

// Letters of all that can be reached with Alt now: labels, buttons, tabs.
class AccessIn : public Access, public ::testing::WithParamInterface<const char *> {
 protected:
  void SetUp() override {
    Access::SetUp();
    speech = std::make_unique<SpokenLanguage>(GetParam());
  }

  QStringList texts() const {
    QStringList all;
    for (const auto *tabs : dialog->findChildren<QTabBar *>()) {
      for (int tab = 0; tab < tabs->count(); ++tab) all << tabs->tabText(tab);
    }
    for (const auto *label : dialog->findChildren<QLabel *>()) {
      if (label->buddy() != nullptr && label->isVisible()) all << label->text();
    }
    for (const auto *button : dialog->findChildren<QAbstractButton *>()) {
      if (button->isVisible()) all << button->text();
    }
    return all;
  }

  std::unique_ptr<SpokenLanguage> speech;
};

TEST_P(AccessIn, NoTwoControlsOfAPageHaveOneLetter) {
  open();
  click("bookletChckBox");
  auto *pages = find<QTabWidget>("pages");
  for (int page = 0; page < pages->count(); ++page) {
    pages->setCurrentIndex(page);
    QCoreApplication::processEvents();
    QMap<QString, QString> owners;
    for (const QString &text : texts()) {
      const QString letter = QKeySequence::mnemonic(text).toString();
      if (letter.isEmpty()) continue;
      EXPECT_FALSE(owners.contains(letter))
          << text.toStdString() << " and " << owners.value(letter).toStdString();
      owners.insert(letter, text);
    }
    EXPECT_GE(owners.size(), 3);
  }
}

TEST_P(AccessIn, EveryLabelBeforeAFieldHasAColonAsTheLanguageWritesIt) {
  const QMap<QString, QString> written{{"fr", QStringLiteral("\u00a0:")},
                                       {"zh_CN", QStringLiteral("：")}};
  const QString colon = written.value(QLatin1String(GetParam()), QStringLiteral(":"));
  open();
  find<QTabWidget>("pages")->setCurrentIndex(0);
  QCoreApplication::processEvents();
  int labels = 0;
  for (const auto *label : dialog->findChildren<QLabel *>()) {
    if (label->buddy() == nullptr || !label->isVisible()) continue;
    ++labels;
    EXPECT_TRUE(label->text().endsWith(colon)) << label->text().toStdString();
    const QString words = label->text().chopped(colon.size());
    EXPECT_FALSE(words.endsWith(u':') || words.back().isSpace()) << label->text().toStdString();
  }
  EXPECT_GE(labels, 10);
}

TEST_P(AccessIn, EveryGeneralSettingHasALetter) {
  open();
  auto *pages = find<QTabWidget>("pages");
  pages->setCurrentIndex(0);
  QCoreApplication::processEvents();
  QStringList texts;
  for (const QWidget *part : {pages->currentWidget(), find<QWidget>("jobStrip")}) {
    for (const auto *label : part->findChildren<QLabel *>()) {
      if (label->buddy() != nullptr && label->isVisible()) texts << label->text();
    }
    for (const auto *button : part->findChildren<QAbstractButton *>()) {
      if (button->isVisible() && !button->text().isEmpty()) texts << button->text();
    }
  }
  EXPECT_GE(texts.size(), 10);
  for (const QString &text : texts) {
    EXPECT_FALSE(QKeySequence::mnemonic(text).isEmpty()) << text.toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Each, AccessIn, allLanguages);

TEST_F(Access, TabReachesEveryControlOfThePanel) {
  open();
  click("bookletChckBox");
  QStringList wanted{QStringLiteral("staplingPopup"), QStringLiteral("foldingPopup"),
                     QStringLiteral("punchPopup"),    QStringLiteral("paperDestPopup"),
                     QStringLiteral("offsetChckBox"), QStringLiteral("bookletChckBox"),
                     QStringLiteral("gutterSlider"),  QStringLiteral("gutterTxtBox"),
                     QStringLiteral("printButton"),   QStringLiteral("cancelButton"),
                     QStringLiteral("printerMenu"),   QStringLiteral("presetMenu")};
  QStringList reached;
  for (int steps = 0; steps < 80 && !wanted.isEmpty(); ++steps) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    if (QApplication::focusWidget() == nullptr) break;
    reached << QApplication::focusWidget()->objectName();
    wanted.removeAll(reached.constLast());
  }
  EXPECT_EQ(wanted.join(QStringLiteral(", ")), QString()) << reached.join(u' ').toStdString();
}

TEST_F(Access, TabGoesFromThePageToThePreviewTheSummaryAndPrint) {
  open();
  auto *pages = find<QTabWidget>("pages");
  // Made when it is first shown, after all else in the window.
  pages->setCurrentIndex(0);
  QCoreApplication::processEvents();
  const QStringList stops{QStringLiteral("printerMenu"),    QStringLiteral("copies"),
                          QStringLiteral("quality"),        QStringLiteral("previewSheets"),
                          QStringLiteral("previewSeveral"), QStringLiteral("historyUndo"),
                          QStringLiteral("summary"),        QStringLiteral("printButton")};
  session->pick(QStringLiteral("OVKFolding"), QStringLiteral("Saddle"));
  find<QWidget>("printerMenu")->setFocus();
  QStringList reached{QStringLiteral("printerMenu")};
  for (int steps = 0; steps < 60 && reached.size() < stops.size(); ++steps) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    const QString name = QApplication::focusWidget()->objectName();
    if (stops.contains(name)) reached << name;
  }
  EXPECT_EQ(reached.join(u' '), stops.join(u' '));
}

TEST_F(Access, EveryStopOfTheTabKeyShowsThatItHasTheKeyboard) {
  QApplication::setCursorFlashTime(0);
  open();
  click("bookletChckBox");
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  const auto look = [this](const QWidget *widget) {
    const QRect place(widget->mapTo(dialog.get(), QPoint()), widget->size());
    return dialog->grab(place.adjusted(-3, -3, 3, 3)).toImage();
  };
  auto *pages = find<QTabWidget>("pages");
  for (int page = 0; page < pages->count(); ++page) {
    pages->setCurrentIndex(page);
    QCoreApplication::processEvents();
    // Focus that did not come by a key may go without a mark.
    find<QWidget>("printerMenu")->setFocus();
    QTest::keyClick(find<QWidget>("printerMenu"), Qt::Key_Tab);
    QSet<QWidget *> seen;
    for (QWidget *stop = QApplication::focusWidget(); !seen.contains(stop);
         stop = QApplication::focusWidget()) {
      seen.insert(stop);
      const QImage with = look(stop);
      QTest::keyClick(stop, Qt::Key_Tab);
      EXPECT_NE(with, look(stop)) << page << ' ' << stop->metaObject()->className() << ' '
                                  << stop->objectName().toStdString();
    }
    EXPECT_GT(seen.size(), 12);
  }
}

TEST_F(Access, ControlAndTabTurnThePageFromAnywhere) {
  open();
  auto *pages = find<QTabWidget>("pages");
  const int first = pages->currentIndex();
  for (const char *place : {"printButton", "printerMenu", "foldingPopup"}) {
    pages->setCurrentIndex(first);
    find<QWidget>(place)->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(pages->currentIndex(), (first + 1) % pages->count()) << place;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab,
                    Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(pages->currentIndex(), first) << place;
  }
}

TEST_P(AccessIn, EveryTabHasALetterThatShowsItsPage) {
  open();
  auto *pages = find<QTabWidget>("pages");
  for (int page = pages->count() - 1; page >= 0; --page) {
    const QKeySequence letter = QKeySequence::mnemonic(pages->tabText(page));
    ASSERT_FALSE(letter.isEmpty()) << pages->tabText(page).toStdString();
    find<QWidget>("printButton")->setFocus();
    QTest::keyClick(dialog.get(), letter[0].key(), Qt::AltModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(pages->currentIndex(), page);
  }
}

TEST_F(Access, AWholeSessionWorksByKeysAlone) {
  open();
  tabTo("punchPopup");
  press(Qt::Key_Down);
  ASSERT_NE(session->marks().marked(QStringLiteral("OVKPunching")), QStringLiteral("None"));
  press(Qt::Key_Backtab);
  ASSERT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("foldingPopup"));
  press(Qt::Key_End);
  ASSERT_EQ(session->marks().marked(QStringLiteral("OVKFolding")), QStringLiteral("Saddle"));
  ASSERT_TRUE(notices().isVisible());
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_NE(session->marks().marked(QStringLiteral("OVKPunching")), QStringLiteral("None"));
  EXPECT_EQ(session->marks().marked(QStringLiteral("OVKFolding")), QStringLiteral("None"));
  press(Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_FALSE(dialog->outcome());
}

TEST_F(Access, APresetAConflictAndAFileWorkByKeysAlone) {
  if (findFilterTool(qEnvironmentVariable("PATH")).isNull()) {
    GTEST_SKIP() << "the filter tool of CUPS is not installed";
  }
  Preset preset;
  preset.name = QStringLiteral("Folded");
  preset.options.insert(QStringLiteral("OVKFolding"), QStringLiteral("Saddle"));
  ASSERT_TRUE(PresetStore(folder.filePath(QStringLiteral("data"))).save(preset));
  open();
  tabTo("presetMenu");
  press(Qt::Key_Down);
  ASSERT_EQ(session->marks().marked(QStringLiteral("OVKFolding")), QStringLiteral("Saddle"));
  tabTo("staplingPopup");
  press(Qt::Key_Down);
  ASSERT_EQ(session->marks().marked(QStringLiteral("OVKFolding")), QStringLiteral("None"));
  tabTo("undoButton");
  press(Qt::Key_Space);
  EXPECT_FALSE(notices().isVisible());
  tabTo("printButton");
  QSignalSpy finished(dialog.get(), &QDialog::finished);
  press(Qt::Key_Space);
  ASSERT_TRUE(finished.count() > 0 || finished.wait(jobTimeout));
  EXPECT_TRUE(printed().contains("%%BeginFeature: *OVKFolding Saddle"));
}

}  // namespace
