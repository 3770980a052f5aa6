// SPDX-License-Identifier: Apache-2.0
// Compares what was typed with what stands in the field.

#include "host/dialog/UnderstoodNote.h"

#include <QEvent>
#include <QLineEdit>

namespace orvek {
namespace {

// A sign, leading zeros and blanks make no other number.
QString plain(const QString &text) {
  QString number = text.trimmed();
  if (number.startsWith(QLatin1Char('+'))) number.remove(0, 1);
  while (number.size() > 1 && number.startsWith(QLatin1Char('0'))) number.remove(0, 1);
  return number;
}

bool isNumber(const QString &text) {
  bool isOne = false;
  static_cast<void>(text.toInt(&isOne));
  return isOne;
}

}  // namespace

UnderstoodNote::UnderstoodNote(QWidget &page)
    : QObject(&page), m_note(QStringLiteral("understoodNote"), &page, nullptr) {
  for (QLineEdit *field : page.findChildren<QLineEdit *>()) {
    field->installEventFilter(this);
    // The panel heard of it before, and has put what it read into the field.
    connect(field, &QLineEdit::textEdited, this,
            [this, field](const QString &edited) { follow(field, edited); });
    connect(field, &QLineEdit::textChanged, this, [this, field] {
      if (field->hasFocus() && field->text() != m_left) m_note.fallSilent();
    });
  }
}

bool UnderstoodNote::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::FocusIn) {
    forget();
    m_left = static_cast<QLineEdit *>(watched)->text();
    m_number = m_left;
  }
  if (event->type() == QEvent::FocusOut || event->type() == QEvent::Hide) forget();
  return false;
}

void UnderstoodNote::follow(QLineEdit *field, const QString &edited) {
  const bool goesOn = !m_typed.isEmpty() && edited.startsWith(m_left) && edited != m_left;
  m_typed = goesOn ? m_typed + edited.mid(m_left.size()) : edited;
  m_left = field->text();
  if (isNumber(m_left)) m_number = m_left;
  if (!isNumber(m_left)) {
    m_note.say(*field, isNumber(m_number) ? tr("%1 still applies").arg(m_number) : QString());
  } else if (plain(m_typed) != plain(m_left)) {
    m_note.say(*field, tr("“%1” was read as %2").arg(m_typed, m_left));
  } else {
    m_note.say(*field, QString());
  }
}

void UnderstoodNote::forget() {
  m_typed.clear();
  m_note.fallSilent();
}

}  // namespace orvek
