// SPDX-License-Identifier: Apache-2.0
// Puts the note where it covers nothing that is being typed.

#include "host/settings/FieldNote.h"

#include "host/settings/Announcement.h"
#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

constexpr int gap = 4;
constexpr int margin = 4;

}  // namespace

FieldNote::FieldNote(const QString &name, QWidget *page, QObject *parent)
    : QObject(parent), m_page(page), m_note(new PlainLabel(page)) {
  m_note->setObjectName(name);
  m_note->setMargin(margin);
  m_note->setFrameShape(QFrame::StyledPanel);
  m_note->setAutoFillBackground(true);
  m_note->setBackgroundRole(QPalette::ToolTipBase);
  m_note->setForegroundRole(QPalette::ToolTipText);
  m_note->hide();
}

FieldNote::~FieldNote() {
  delete m_note;
}

void FieldNote::say(const QWidget &field, const QString &words) {
  if (words.isEmpty()) fallSilent();
  if (words.isEmpty() || !m_note) return;
  QWidget *page = m_page == nullptr ? field.window() : m_page;
  if (m_note->parentWidget() != page) m_note->setParent(page);
  m_note->setText(words);
  m_note->adjustSize();
  const QRect place(field.mapTo(page, QPoint()), field.size());
  const bool fits = place.right() + gap + m_note->width() <= page->width();
  const int left =
      fits ? place.right() + gap : qBound(0, place.right() - m_note->width(), page->width());
  const int top = fits ? place.center().y() - m_note->height() / 2 : place.bottom() + gap;
  m_note->move(left, top);
  m_note->raise();
  m_note->show();
  announce(*m_note, words);
}

void FieldNote::fallSilent() {
  if (m_note) m_note->hide();
}

}  // namespace orvek
