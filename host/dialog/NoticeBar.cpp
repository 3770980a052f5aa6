// SPDX-License-Identifier: Apache-2.0
// Icon, words, Undo and a way to send the bar away.

#include "host/dialog/NoticeBar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

constexpr int iconSize = 22;
constexpr int margin = 8;
constexpr qreal cornerRadius = 4;
constexpr qreal tint = 0.16;  // of the kind's colour in the bar's
constexpr qreal edgeTint = 0.5;
const QColor problemColour(0xda, 0x44, 0x53);

QColor mixed(const QColor &background, const QColor &colour, qreal share) {
  const auto part = [share](qreal from, qreal to) { return from + (to - from) * share; };
  return QColor::fromRgbF(float(part(background.redF(), colour.redF())),
                          float(part(background.greenF(), colour.greenF())),
                          float(part(background.blueF(), colour.blueF())));
}

}  // namespace

NoticeBar::NoticeBar(QWidget *parent)
    : QFrame(parent),
      m_icon(new PlainLabel(this)),
      m_text(new PlainLabel(this)),
      m_undo(new QPushButton(tr("&Undo"), this)),
      m_close(new QToolButton(this)) {
  setObjectName(QStringLiteral("noticeBar"));
  setAccessibleName(tr("Notice"));
  m_text->setObjectName(QStringLiteral("noticeText"));
  m_text->setWordWrap(true);
  m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  m_undo->setObjectName(QStringLiteral("undoButton"));
  m_undo->setAutoDefault(false);
  m_undo->setAccessibleName(tr("Undo"));
  m_undo->setAccessibleDescription(tr("Takes back the last choice with all that it changed"));
  m_close->setObjectName(QStringLiteral("noticeCloseButton"));
  m_close->setAutoRaise(true);
  m_close->setFocusPolicy(Qt::StrongFocus);
  m_close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
  m_close->setAccessibleName(tr("Close the notice"));
  m_close->setToolTip(tr("Close the notice"));
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(margin, margin / 2, margin / 2, margin / 2);
  row->addWidget(m_icon);
  row->addWidget(m_text, 1);
  row->addWidget(m_undo);
  row->addWidget(m_close);
  connect(m_undo, &QPushButton::clicked, this, &NoticeBar::undoAsked);
  connect(m_close, &QToolButton::clicked, this, &NoticeBar::fallSilent);
  hide();
}

void NoticeBar::say(Kind kind, const QStringList &sentences, bool canUndo) {
  m_kind = kind;
  m_sentences = sentences;
  m_text->setText(sentences.join(QLatin1Char('\n')));
  m_text->setAccessibleName(m_text->text());
  m_undo->setVisible(canUndo);
  showKind();
  show();
  update();
  QAccessibleEvent alert(m_text, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void NoticeBar::fallSilent() {
  if (m_sentences.isEmpty()) return;
  m_sentences.clear();
  // A hidden widget can't keep the keyboard; the next one in line takes it.
  hide();
}

void NoticeBar::showKind() {
  const bool isProblem = m_kind == Kind::Problem;
  const auto icon = isProblem ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation;
  m_icon->setPixmap(style()->standardIcon(icon).pixmap(iconSize, iconSize));
  m_icon->setAccessibleName(isProblem ? tr("Problem") : tr("Information"));
}

void NoticeBar::paintEvent(QPaintEvent *) {
  const QColor background = palette().color(QPalette::Window);
  const QColor colour =
      m_kind == Kind::Problem ? problemColour : palette().color(QPalette::Highlight);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(mixed(background, colour, edgeTint));
  painter.setBrush(mixed(background, colour, tint));
  const qreal half = 0.5;  // puts a line one pixel wide onto the pixels
  painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), cornerRadius,
                          cornerRadius);
}

}  // namespace orvek
