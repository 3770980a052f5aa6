// SPDX-License-Identifier: Apache-2.0
// Collects the letters in use and hands out free ones.

#include "host/settings/Mnemonics.h"

#include <QAbstractButton>
#include <QHash>
#include <QKeySequence>
#include <QLabel>
#include <QList>
#include <QSet>
#include <QTabBar>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "host/settings/LabelText.h"

namespace orvek {
namespace {

// On what got its letter here: it may get another one where somebody else needs it.
constexpr const char *givenProperty = "letterIsGiven";

const QString alphabet = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789");

// One text with a mnemonic that can be replaced.
struct Carrier {
  QLabel *label = nullptr;
  QAbstractButton *button = nullptr;
  QTabBar *tabs = nullptr;
  int tab = 0;

  QWidget *widget() const {
    if (tabs != nullptr) return tabs;
    return label != nullptr ? static_cast<QWidget *>(label) : button;
  }
  QString text() const {
    if (tabs != nullptr) return tabs->tabText(tab);
    return label != nullptr ? label->text() : button->text();
  }
  void setText(const QString &text) const {
    if (tabs != nullptr) return tabs->setTabText(tab, text);
    label != nullptr ? label->setText(text) : button->setText(text);
  }
};

QChar mnemonicOf(const QString &text) {
  const QKeySequence sequence = QKeySequence::mnemonic(text);
  return sequence.isEmpty() ? QChar() : sequence.toString().back().toUpper();
}

QString plainText(const QString &whole) {
  const QString text = whole.left(endOfWords(whole));
  const QString colon = whole.mid(text.size());
  QString plain;
  for (int i = 0; i < text.size(); ++i) {
    if (text[i] == QLatin1Char('&') && ++i == text.size()) break;
    plain += text[i];
  }
  // "(&X)" behind a text without Latin letters is the mnemonic alone.
  const int size = static_cast<int>(plain.size());
  const bool added = text.endsWith(QLatin1Char(')')) && text.size() > 4 &&
                     text.mid(text.size() - 4, 2) == QLatin1String("(&");
  return (added ? plain.left(size - 3).trimmed() : plain) + colon;
}

QList<Carrier> carriersIn(QWidget *widget, bool alsoHidden = false) {
  QList<Carrier> carriers;
  for (QWidget *child : widget->findChildren<QWidget *>()) {
    if (!alsoHidden && !child->isVisibleTo(widget)) continue;
    auto *label = qobject_cast<QLabel *>(child);
    if (label != nullptr && label->buddy() != nullptr) carriers.append({label});
    auto *button = qobject_cast<QAbstractButton *>(child);
    if (button != nullptr && !button->text().isEmpty()) carriers.append({nullptr, button});
  }
  return carriers;
}

QSet<QChar> lettersAround(QWidget *page) {
  QSet<QChar> letters;
  QWidget *window = page->window();
  for (const Carrier &carrier : carriersIn(window)) {
    const bool mayMove = carrier.widget()->property(givenProperty).toBool();
    if (!mayMove && !page->isAncestorOf(carrier.widget())) {
      letters.insert(mnemonicOf(carrier.text()));
    }
  }
  return letters;
}

// Shown beside the page, with letters that were given here.
QList<Carrier> movableAround(QWidget *page) {
  QList<Carrier> carriers = carriersIn(page->window());
  carriers.removeIf([page](const Carrier &carrier) {
    const bool mayMove = carrier.widget()->property(givenProperty).toBool();
    return !mayMove || page->isAncestorOf(carrier.widget());
  });
  return carriers;
}

// Of all but the page and the tabs, shown or not.
QSet<QChar> lettersElsewhere(QWidget *window, const QWidget *page) {
  QSet<QChar> letters;
  for (const Carrier &carrier : carriersIn(window, true)) {
    const bool isOfPage = page != nullptr && page->isAncestorOf(carrier.widget());
    if (!isOfPage) letters.insert(mnemonicOf(carrier.text()));
  }
  return letters;
}

QList<Carrier> tabsIn(QWidget *window) {
  QList<Carrier> carriers;
  for (QTabBar *tabs : window->findChildren<QTabBar *>()) {
    for (int tab = 0; tab < tabs->count(); ++tab) carriers.append({nullptr, nullptr, tabs, tab});
  }
  return carriers;
}

bool isLatin(QChar letter) {
  constexpr char16_t endOfLatin = 0x250;
  return letter.isLetterOrNumber() && letter.unicode() < endOfLatin;
}

// The letters of a text, those that begin a word first; of a text without any, the alphabet.
QList<QChar> lettersFor(const QString &plain) {
  QList<QChar> initials;
  QList<QChar> others;
  for (int i = 0; i < plain.size(); ++i) {
    if (!isLatin(plain[i])) continue;
    const bool beginsWord = i == 0 || plain[i - 1].isSpace();
    (beginsWord ? initials : others) << plain[i].toUpper();
  }
  if (initials.isEmpty() && others.isEmpty()) return {alphabet.begin(), alphabet.end()};
  return initials + others;
}

int placeOf(QChar letter, const QString &plain) {
  int found = -1;
  for (int i = 0; i < plain.size(); ++i) {
    if (plain[i].toUpper() != letter) continue;
    if (i == 0 || plain[i - 1].isSpace()) return i;
    if (found < 0) found = i;
  }
  return found;
}

QString withLetter(const QString &plain, QChar letter) {
  if (letter.isNull()) return withoutMnemonic(plain);
  const int place = placeOf(letter, plain);
  if (place < 0) {
    const qsizetype end = endOfWords(plain);
    return withoutMnemonic(plain.left(end)) + QStringLiteral(" (&") + letter + QLatin1Char(')') +
           plain.mid(end);
  }
  return withoutMnemonic(plain.left(place)) + QLatin1Char('&') + withoutMnemonic(plain.mid(place));
}

// Hands out letters so that as many texts as possible get one: where all letters of a text are
// taken, one of their owners moves on to another of its own.
class LetterTable {
 public:
  explicit LetterTable(QSet<QChar> taken) : m_taken(std::move(taken)) {}

  int add(const QString &plain, const QSet<QChar> &without) {
    m_letters << lettersFor(plain);
    m_letters.last().removeIf([&](QChar letter) { return without.contains(letter); });
    return static_cast<int>(m_letters.size()) - 1;
  }

  bool give(int text, QChar letter) {
    if (letter.isNull() || m_taken.contains(letter) || m_owners.contains(letter)) return false;
    m_owners.insert(letter, text);
    return true;
  }

  void find(int text) {
    QSet<QChar> tried = m_taken;
    find(text, &tried);
  }

  QChar letterOf(int text) const { return m_owners.key(text); }

 private:
  bool find(int text, QSet<QChar> *tried) {
    for (const QChar letter : m_letters[text]) {
      if (give(text, letter)) return true;
    }
    for (const QChar letter : m_letters[text]) {
      if (tried->contains(letter)) continue;
      tried->insert(letter);
      const int owner = m_owners.take(letter);
      m_owners.insert(letter, text);
      if (find(owner, tried)) return true;
      m_owners.insert(letter, owner);
    }
    return false;
  }

  QSet<QChar> m_taken;
  QList<QList<QChar>> m_letters;
  QHash<QChar, int> m_owners;
};

}  // namespace

QString withoutMnemonic(const QString &text) {
  return QString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

void assignTabMnemonics(QWidget *window, const QWidget *page) {
  QSet<QChar> taken = lettersElsewhere(window, page);
  for (QTabBar *tabs : window->findChildren<QTabBar *>()) {
    for (int tab = 0; tab < tabs->count(); ++tab) {
      const QString plain = plainText(tabs->tabText(tab));
      if (mnemonicOf(tabs->tabText(tab)).isNull()) {
        const QList<QChar> letters = lettersFor(plain);
        const auto free = std::find_if(letters.begin(), letters.end(),
                                       [&](QChar letter) { return !taken.contains(letter); });
        if (free != letters.end()) tabs->setTabText(tab, withLetter(plain, *free));
      }
      taken.insert(mnemonicOf(tabs->tabText(tab)));
    }
  }
}

void assignMnemonics(QWidget *page) {
  assignTabMnemonics(page->window(), page);
  // A tab moves on where the page needs its letter, but to none that another page has.
  const QSet<QChar> elsewhere = lettersElsewhere(page->window(), page);
  const QList<Carrier> carriers = tabsIn(page->window()) + movableAround(page) + carriersIn(page);
  LetterTable letters(lettersAround(page));
  QList<int> without;
  for (const Carrier &carrier : carriers) {
    const bool isTab = carrier.tabs != nullptr;
    const int text = letters.add(plainText(carrier.text()), isTab ? elsewhere : QSet<QChar>());
    if (!letters.give(text, mnemonicOf(carrier.text()))) without << text;
  }
  for (const int text : without) letters.find(text);
  for (int text = 0; text < carriers.size(); ++text) {
    const Carrier &carrier = carriers[text];
    if (carrier.tabs == nullptr) carrier.widget()->setProperty(givenProperty, true);
    if (mnemonicOf(carrier.text()) == letters.letterOf(text)) continue;
    carrier.setText(withLetter(plainText(carrier.text()), letters.letterOf(text)));
  }
}

}  // namespace orvek
