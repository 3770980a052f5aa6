// SPDX-License-Identifier: Apache-2.0
// Compares what was typed with what stands in the field.

#include "host/dialog/UnderstoodNote.h"

#include <QEvent>
#include <QLineEdit>
#include <QStyle>

#include "host/settings/Announcement.h"
#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

constexpr int gap = 4;
constexpr int margin = 4;

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
    : QObject(&page), m_page(page), m_note(new PlainLabel(&page)) {
  m_note->setObjectName(QStringLiteral("understoodNote"));
  m_note->setMargin(margin);
  m_note->setFrameShape(QFrame::StyledPanel);
  m_note->setAutoFillBackground(true);
  m_note->setBackgroundRole(QPalette::ToolTipBase);
  m_note->setForegroundRole(QPalette::ToolTipText);
  m_note->hide();
  for (QLineEdit *field : page.findChildren<QLineEdit *>()) {
    field->installEventFilter(this);
    // The panel heard of it before, and has put what it read into the field.
    connect(field, &QLineEdit::textEdited, this,
            [this, field](const QString &edited) { follow(field, edited); });
    connect(field, &QLineEdit::textChanged, this, [this, field] {
      if (field->hasFocus() && field->text() != m_left) m_note->hide();
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
    say(*field, isNumber(m_number) ? tr("%1 still applies").arg(m_number) : QString());
  } else if (plain(m_typed) != plain(m_left)) {
    say(*field, tr("“%1” was read as %2").arg(m_typed, m_left));
  } else {
    say(*field, QString());
  }
}

// Behind the field where there is room, else below it; what it covers is not being typed in.
void UnderstoodNote::say(const QLineEdit &field, const QString &words) {
  if (words.isEmpty()) {
    m_note->hide();
    return;
  }
  m_note->setText(words);
  m_note->adjustSize();
  const QRect place(field.mapTo(&m_page, QPoint()), field.size());
  const bool fits = place.right() + gap + m_note->width() <= m_page.width();
  const int left =
      fits ? place.right() + gap : qBound(0, place.right() - m_note->width(), m_page.width());
  const int top = fits ? place.center().y() - m_note->height() / 2 : place.bottom() + gap;
  m_note->move(left, top);
  m_note->raise();
  m_note->show();
  announce(*m_note, words);
}

void UnderstoodNote::forget() {
  m_typed.clear();
  m_note->hide();
}

}  // namespace orvek
