// SPDX-License-Identifier: Apache-2.0
// How many labels of the page of general settings have no letter, once with assignMnemonics and
// once where each takes the first letter that is free.

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <QTranslator>
#include <cstdio>

#include "bench/host/Benches.h"
#include "host/dialog/PrintDialog.h"

namespace {

using namespace orvek;

struct Texts {
  QStringList ofPage;
  QSet<QString> lettersAround;
};

QString letterOf(const QString &text) {
  return QKeySequence::mnemonic(text).toString().right(1);
}

void take(const QWidget *widget, const QString &text, const QWidget *page, Texts *texts) {
  if (!widget->isVisible() || text.isEmpty()) return;
  if (page->isAncestorOf(widget)) {
    texts->ofPage << text;
  } else {
    texts->lettersAround << letterOf(text);
  }
}

Texts textsOf(const QWidget &window, const QWidget *page) {
  Texts texts;
  for (const auto *tabs : window.findChildren<QTabBar *>()) {
    for (int tab = 0; tab < tabs->count(); ++tab)
      texts.lettersAround << letterOf(tabs->tabText(tab));
  }
  for (const auto *label : window.findChildren<QLabel *>()) {
    if (label->buddy() != nullptr) take(label, label->text(), page, &texts);
  }
  for (const auto *button : window.findChildren<QAbstractButton *>()) {
    take(button, button->text(), page, &texts);
  }
  return texts;
}

// Of a text's letters, those that begin a word first, the first that is free.
bool takeFreeLetter(const QString &text, QSet<QString> *taken) {
  const QString plain = QString(text).remove(u'&').toUpper();
  for (const bool initials : {true, false}) {
    for (qsizetype i = 0; i < plain.size(); ++i) {
      const bool beginsWord = i == 0 || plain[i - 1].isSpace();
      if (beginsWord != initials || !plain[i].isLetterOrNumber() || taken->contains(plain[i]))
        continue;
      *taken << plain[i];
      return true;
    }
  }
  return false;
}

void compareOn(const char *model, const char *language) {
  QTranslator translator;
  if (translator.load(QStringLiteral(":/translations/orvek-print_%1.qm").arg(language))) {
    QCoreApplication::installTranslator(&translator);
  }
  SessionSetup setup;
  setup.printer =
      PrinterDescription::open(QStringLiteral(ORVEK_SOURCE_DIR "/printers/%1.ppd").arg(model))
          .take();
  const auto session = PrintSession::begin(setup).take();
  PrintDialog dialog(*session, {});
  dialog.show();
  const auto *pages = dialog.findChild<QTabWidget *>(QStringLiteral("pages"));
  QCoreApplication::processEvents();
  Texts texts = textsOf(dialog, pages->widget(0));
  int ours = 0;
  int greedy = 0;
  for (const QString &text : texts.ofPage) {
    if (letterOf(text).isEmpty()) ++ours;
    if (!takeFreeLetter(text, &texts.lettersAround)) ++greedy;
  }
  std::printf("%-12s %s: of %2d labels without a letter: ours %d, first free letter %d\n", model,
              language, int(texts.ofPage.size()), ours, greedy);
}

}  // namespace

namespace bench {

void benchMnemonics() {
  for (const char *model : {"Orvek-6180", "Orvek-4150", "Orvek-2120"}) {
    for (const char *language : {"en", "de", "fr"}) compareOn(model, language);
  }
}

}  // namespace bench
