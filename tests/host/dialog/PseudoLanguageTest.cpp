// SPDX-License-Identifier: Apache-2.0
// The window in a language that puts every text into brackets and makes it longer: a text without
// brackets was forgotten by whoever wrote it, and can't be translated.

#include <QRegularExpression>
#include <QTranslator>

#include "host/presets/PresetName.h"
#include "tests/host/dialog/DialogKit.h"
#include "tests/host/dialog/VisibleTexts.h"

using namespace orvek;
using namespace orvek::test;

namespace {

// By two letters for five: as much as German or French need.
constexpr int letters = 5;
constexpr int more = 2;

class Brackets : public QTranslator {
 public:
  Brackets() { QCoreApplication::installTranslator(this); }
  bool isEmpty() const override { return false; }
  QString translate(const char *, const char *text, const char *, int) const override {
    const QString plain = QString::fromUtf8(text);
    return u'[' + plain + QString(plain.size() * more / letters + 1, u'~') + u']';
  }
};

class PseudoLanguage : public DialogTest {
 protected:
  // What is in brackets, and brackets within brackets, are translated.
  static QString withoutTranslated(QString text) {
    static const QRegularExpression inBrackets(QStringLiteral("\\[[^\\[\\]]*\\]"));
    while (text.contains(inBrackets)) text.remove(inBrackets);
    return text;
  }

  // Texts of the printer, of its panel and of the document are in the language that they are in.
  QStringList textsOfOthers() const {
    const PrinterDescription &printer = session->marks().printer();
    QStringList texts{printer.modelName(), QStringLiteral("Finishing-Sample.pdf"),
                      QStringLiteral("out.ps")};
    for (const PrinterOptionGroup &group : printer.options()) {
      texts << group.text;
      for (const PrinterOption &option : group.options) {
        texts << option.text();
        for (const PrinterChoice &choice : option.choices()) texts << choice.text;
      }
    }
    for (const auto &[title, value] : session->panels().summary()) texts << title << value;
    for (const HostedPanel *panel : {session->panels().first()}) texts << panel->name();
    std::sort(texts.begin(), texts.end(),
              [](const QString &one, const QString &other) { return one.size() > other.size(); });
    return texts;
  }

  void expectAllTranslated() {
    static const QRegularExpression letter(QStringLiteral("\\p{L}"));
    const QStringList others = textsOfOthers();
    for (const VisibleText &shown : visibleTexts(*dialog, QStringLiteral("pdeView"))) {
      QString left = withoutTranslated(shown.text);
      left.remove(u'&');
      for (const QString &other : others) left.remove(other);
      EXPECT_FALSE(left.contains(letter))
          << shown.place.toStdString() << ": " << shown.text.toStdString();
    }
  }

  void showEveryPage() {
    auto *pages = find<QTabWidget>("pages");
    for (int page = 0; page < pages->count(); ++page) {
      pages->setCurrentIndex(page);
      QCoreApplication::processEvents();
      expectAllTranslated();
    }
  }

  const Brackets language;
};

TEST_F(PseudoLanguage, ShowsNoTextOfTheWindowThatWasForgotten) {
  auto store = std::make_shared<PresetStore>(folder.filePath(QStringLiteral("data")));
  prepare = [store](DialogSetup &setup) { setup.presets = store; };
  open();
  click("bookletChckBox");
  showEveryPage();
}

TEST_F(PseudoLanguage, ShowsNoForgottenTextOfANoticeAndOfAProblem) {
  open();
  session->pick(QStringLiteral("OVKPunching"), QStringLiteral("2Hole"));
  session->pick(QStringLiteral("OVKFolding"), QStringLiteral("Saddle"));
  ASSERT_FALSE(notices().sentences().isEmpty());
  expectAllTranslated();
  dialog->showProblem(checkPresetName({}).failure());
  expectAllTranslated();
}

TEST_F(PseudoLanguage, NamesAllKeywordsOfAPrinterThatHasNoTexts) {
  session =
      openSession(QStringLiteral(ORVEK_SOURCE_DIR "/tests/host/ppd/files/keywords.ppd")).take();
  session->pick(QStringLiteral("Duplex"), QStringLiteral("DuplexTumble"));
  showWindow();
  showEveryPage();
}

}  // namespace
