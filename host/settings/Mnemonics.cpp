// SPDX-License-Identifier: Apache-2.0
// Collects the letters in use and hands out free ones.

#include "host/settings/Mnemonics.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QList>
#include <QSet>
#include <QTabBar>
#include <QWidget>

namespace orvek {
namespace {

const QString alphabet = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789");

// One text with a mnemonic that can be replaced.
struct Carrier {
  QLabel *label = nullptr;
  QAbstractButton *button = nullptr;

  QString text() const { return label != nullptr ? label->text() : button->text(); }
  void setText(const QString &text) const {
    label != nullptr ? label->setText(text) : button->setText(text);
  }
};

QChar mnemonicOf(const QString &text) {
  const QKeySequence sequence = QKeySequence::mnemonic(text);
  return sequence.isEmpty() ? QChar() : sequence.toString().back().toUpper();
}

QString plainText(const QString &text) {
  QString plain;
  for (int i = 0; i < text.size(); ++i) {
    if (text[i] == QLatin1Char('&') && ++i == text.size()) break;
    plain += text[i];
  }
  // "(&X)" behind a text without Latin letters is the mnemonic alone.
  const int size = static_cast<int>(plain.size());
  const bool added = text.endsWith(QLatin1Char(')')) && text.size() > 4 &&
                     text.mid(text.size() - 4, 2) == QLatin1String("(&");
  return added ? plain.left(size - 3).trimmed() : plain;
}

QList<Carrier> carriersIn(QWidget *widget) {
  QList<Carrier> carriers;
  for (QWidget *child : widget->findChildren<QWidget *>()) {
    if (!child->isVisibleTo(widget)) continue;
    auto *label = qobject_cast<QLabel *>(child);
    if (label != nullptr && label->buddy() != nullptr) carriers.append({label, nullptr});
    auto *button = qobject_cast<QAbstractButton *>(child);
    if (button != nullptr && !button->text().isEmpty()) carriers.append({nullptr, button});
  }
  return carriers;
}

QSet<QChar> lettersAround(QWidget *page) {
  QSet<QChar> letters;
  QWidget *window = page->window();
  for (const Carrier &carrier : carriersIn(window)) {
    QWidget *widget = carrier.label != nullptr ? static_cast<QWidget *>(carrier.label)
                                               : static_cast<QWidget *>(carrier.button);
    if (!page->isAncestorOf(widget)) letters.insert(mnemonicOf(carrier.text()));
  }
  for (const QTabBar *tabs : window->findChildren<QTabBar *>()) {
    for (int tab = 0; tab < tabs->count(); ++tab) letters.insert(mnemonicOf(tabs->tabText(tab)));
  }
  return letters;
}

bool mayCarry(QChar letter, const QSet<QChar> &taken) {
  const QChar upper = letter.toUpper();
  return upper.isLetterOrNumber() && upper.unicode() < 0x250 && !taken.contains(upper);
}

int freePlace(const QString &plain, const QSet<QChar> &taken) {
  for (int i = 0; i < plain.size(); ++i) {
    const bool beginsWord = i == 0 || plain[i - 1].isSpace();
    if (beginsWord && mayCarry(plain[i], taken)) return i;
  }
  for (int i = 0; i < plain.size(); ++i) {
    if (mayCarry(plain[i], taken)) return i;
  }
  return -1;
}

QString withLetter(const QString &plain, QSet<QChar> *taken) {
  const int place = freePlace(plain, *taken);
  if (place >= 0) {
    taken->insert(plain[place].toUpper());
    return withoutMnemonic(plain.left(place)) + QLatin1Char('&') +
           withoutMnemonic(plain.mid(place));
  }
  for (const QChar letter : alphabet) {
    if (taken->contains(letter)) continue;
    taken->insert(letter);
    return withoutMnemonic(plain) + QStringLiteral(" (&") + letter + QLatin1Char(')');
  }
  return withoutMnemonic(plain);
}

}  // namespace

QString withoutMnemonic(const QString &text) {
  return QString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

void assignMnemonics(QWidget *page) {
  QSet<QChar> taken = lettersAround(page);
  QList<Carrier> without;
  for (const Carrier &carrier : carriersIn(page)) {
    const QChar own = mnemonicOf(carrier.text());
    if (own.isNull() || taken.contains(own)) {
      without.append(carrier);
    } else {
      taken.insert(own);
    }
  }
  for (const Carrier &carrier : without) {
    carrier.setText(withLetter(plainText(carrier.text()), &taken));
  }
}

}  // namespace orvek
