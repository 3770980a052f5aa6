// SPDX-License-Identifier: Apache-2.0
// The window where reading begins at the right: Arabic and Hebrew texts, the host's pages and the
// panel mirrored together.

#include <QGlyphRun>
#include <QLabel>
#include <QTabWidget>
#include <QTextLayout>
#include <QTranslator>

#include "tests/host/dialog/ScreenKit.h"
#include "tests/host/dialog/TextFit.h"

using namespace orvek;
using namespace orvek::test;

namespace {

/// A language of one word, which stands before each text of the program.
class OneWord : public QTranslator {
 public:
  explicit OneWord(const QString &word) : m_word(word) {
    QCoreApplication::installTranslator(this);
  }
  bool isEmpty() const override { return false; }
  QString translate(const char *, const char *text, const char *, int) const override {
    return m_word + u' ' + QString::fromUtf8(text);
  }

 private:
  QString m_word;
};

/// A word of the program's language, and one that the printer's description has for stapling.
struct Words {
  const char *program;
  const char *stapling;
};

class RightToLeft : public ScreenTest, public ::testing::WithParamInterface<Words> {
 protected:
  void SetUp() override {
    ScreenTest::SetUp();
    if (IsSkipped()) return;
    if (!isDrawn(word())) GTEST_SKIP() << "no font has the letters of " << GetParam().program;
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    screen = screenOf(QStringLiteral("1920x1080"));
    language.emplace(word());
    auto begun = openSession(description());
    ASSERT_TRUE(begun) << begun.failure().line().toStdString();
    session = begun.take();
    showWindow();
    settle();
  }

  void TearDown() override {
    dialog.reset();
    session.reset();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
  }

  static QString word() { return QString::fromUtf8(GetParam().program); }

  // A font that lacks a letter has glyph 0 in its place.
  static bool isDrawn(const QString &text) {
    QTextLayout layout(text, QApplication::font());
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    return !runs.isEmpty() && std::none_of(runs.begin(), runs.end(), [](const QGlyphRun &run) {
      return run.glyphIndexes().contains(0);
    });
  }

  // The large printer's description with the word in it.
  QString description() const {
    QFile original(QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"));
    QFile own(folder.filePath(QStringLiteral("own.ppd")));
    if (!original.open(QIODevice::ReadOnly) || !own.open(QIODevice::WriteOnly)) return {};
    QByteArray text = original.readAll();
    text.replace("*LanguageEncoding: ISOLatin1", "*LanguageEncoding: UTF-8");
    const QByteArray named = QByteArray("*OVKStapling/") + GetParam().stapling + ":";
    text.replace("*OVKStapling/Stapling:", named);
    own.write(text);
    return own.fileName();
  }

  QRect placeOf(const QWidget *widget) const {
    return {widget->mapTo(dialog.get(), QPoint()), widget->size()};
  }

  bool stands(const QWidget *one, const QWidget *rightOf) const {
    return placeOf(one).left() >= placeOf(rightOf).right();
  }

  std::optional<OneWord> language;
};

TEST_P(RightToLeft, EachLabelStandsWhereReadingOfItsFieldBegins) {
  auto *pages = find<QTabWidget>("pages");
  int labels = 0;
  for (int page = 0; page < pages->count(); ++page) {
    pages->setCurrentIndex(page);
    settle();
    for (const auto *label : dialog->findChildren<QLabel *>()) {
      if (label->buddy() == nullptr || !label->isVisible()) continue;
      EXPECT_TRUE(stands(label, label->buddy())) << label->text().toStdString();
      ++labels;
    }
  }
  EXPECT_GE(labels, 20);
}

TEST_P(RightToLeft, ThePanelIsTheMirrorOfItsDesign) {
  click("bookletChckBox");
  settle();
  for (const auto &[label, field] :
       {std::pair("staplingLbl", "staplingPopup"), std::pair("gutterLbl", "gutterSlider"),
        std::pair("paperSizeLbl", "paperSizePopup")}) {
    EXPECT_TRUE(stands(find<QWidget>(label), find<QWidget>(field))) << label;
    const int gap = placeOf(find<QWidget>(label)).left() - placeOf(find<QWidget>(field)).right();
    EXPECT_LE(gap, 20) << label;
  }
  EXPECT_TRUE(stands(find<QWidget>("gutterSlider"), find<QWidget>("gutterTxtBox")));
  EXPECT_TRUE(stands(find<QWidget>("foldingPopup"), find<QWidget>("imageWindow")));
  const QRect panel = placeOf(find<QWidget>("pdeView"));
  EXPECT_TRUE(panel.contains(placeOf(find<QWidget>("bookletBox"))));
}

TEST_P(RightToLeft, TheWindowsPartsFollowEachOtherFromTheRight) {
  EXPECT_TRUE(stands(find<QWidget>("copies"), find<QWidget>("allPages")));
  EXPECT_TRUE(stands(find<QWidget>("pageRanges"), find<QWidget>("sides")));
  EXPECT_TRUE(stands(find<QWidget>("printerMenu"), find<QWidget>("presetMenu")));
  EXPECT_TRUE(stands(find<QWidget>("pages"), find<QWidget>("previewSheets")));
}

TEST_P(RightToLeft, TextsOfProgramAndPrinterAreShownWhole) {
  EXPECT_TRUE(find<QPushButton>("cancelButton")->text().startsWith(word()));
  const QString stapling = QString::fromUtf8(GetParam().stapling);
  EXPECT_TRUE(find<QLabel>("staplingLbl")->text().contains(stapling));
  EXPECT_TRUE(isDrawn(stapling));
  EXPECT_EQ(tooNarrow(dialog.get()).join(u'\n').toStdString(), "");
}

INSTANTIATE_TEST_SUITE_P(Each, RightToLeft,
                         ::testing::Values(Words{"نص", "التدبيس"}, Words{"טקסט", "הידוק"}));

}  // namespace
