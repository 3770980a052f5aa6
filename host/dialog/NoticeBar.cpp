// SPDX-License-Identifier: Apache-2.0
// Icon, words, Undo or Try Again, a way to the other notices, and one to send this one away.

#include "host/dialog/NoticeBar.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

#include "host/settings/Announcement.h"
#include "platform/ui/PlainText.h"
#include "platform/ui/SpokenRole.h"

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
      m_again(new QPushButton(tr("Try Again"), this)),
      m_earlier(addTurn("noticeEarlier", Qt::LeftArrow, -1, tr("Earlier notice"))),
      m_place(new PlainLabel(this)),
      m_later(addTurn("noticeLater", Qt::RightArrow, 1, tr("Later notice"))),
      m_close(new QToolButton(this)) {
  nameParts();
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(margin, margin / 2, margin / 2, margin / 2);
  row->addWidget(m_icon);
  row->addWidget(m_text, 1);
  row->addWidget(m_undo);
  row->addWidget(m_again);
  row->addWidget(m_earlier);
  row->addWidget(m_place);
  row->addWidget(m_later);
  row->addWidget(m_close);
  connect(m_undo, &QPushButton::clicked, this, &NoticeBar::undoAsked);
  connect(m_again, &QPushButton::clicked, this, &NoticeBar::againAsked);
  connect(m_close, &QToolButton::clicked, this, &NoticeBar::dismissed);
  hide();
}

void NoticeBar::nameParts() {
  // A frame is passed over by whoever listens; a notification is read when it shows.
  speakAs<NoticeBar, QAccessible::Notification>();
  setObjectName(QStringLiteral("noticeBar"));
  m_text->setObjectName(QStringLiteral("noticeText"));
  m_text->setWordWrap(true);
  m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  m_undo->setObjectName(QStringLiteral("undoButton"));
  m_undo->setAutoDefault(false);
  m_again->setObjectName(QStringLiteral("noticeAgain"));
  m_again->setAutoDefault(false);
  m_place->setObjectName(QStringLiteral("noticePlace"));
  m_close->setObjectName(QStringLiteral("noticeCloseButton"));
  m_close->setAutoRaise(true);
  m_close->setFocusPolicy(Qt::StrongFocus);
  m_close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
  m_close->setAccessibleName(tr("Close the notice"));
  m_close->setToolTip(tr("Close the notice"));
}

QToolButton *NoticeBar::addTurn(const char *name, Qt::ArrowType arrow, int places,
                                const QString &text) {
  auto *button = new QToolButton(this);
  button->setObjectName(QLatin1String(name));
  button->setArrowType(arrow);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::StrongFocus);
  button->setAccessibleName(text);
  button->setToolTip(plainToolTip(text));
  connect(button, &QToolButton::clicked, this, [this, places] { Q_EMIT turned(places); });
  return button;
}

void NoticeBar::say(const Notice &notice, bool isNew) {
  m_kind = notice.kind;
  m_sentences = notice.sentences;
  m_text->setText(m_sentences.join(QLatin1Char('\n')));
  m_text->setAccessibleName(m_text->text());
  showKind();
  showUndo(notice.takesBack);
  m_again->setVisible(notice.offersAgain);
  showPlace(notice.place, notice.count);
  setAccessibleName(m_icon->accessibleName() + QStringLiteral(": ") +
                    m_sentences.join(QStringLiteral(". ")));
  show();
  update();
  if (isNew) announce(*this, accessibleName());
}

void NoticeBar::showUndo(const QStringList &takesBack) {
  const int acts = static_cast<int>(takesBack.size());
  m_undo->setVisible(acts > 0);
  m_undo->setText(acts > 1 ? tr("&Undo %n steps", nullptr, acts) : tr("&Undo"));
  m_undo->setAccessibleName(m_undo->text().remove(QLatin1Char('&')));
  const QString words = takesBack.join(QLatin1Char('\n'));
  m_undo->setToolTip(plainToolTip(words));
  m_undo->setAccessibleDescription(
      tr("Takes back the choice with all that it changed, and what came after it"));
}

void NoticeBar::showPlace(int place, int count) {
  m_place->setText(tr("%1 of %2", "a notice's place").arg(place).arg(count));
  m_earlier->setEnabled(place > 1);
  m_later->setEnabled(place < count);
  for (QWidget *part : {static_cast<QWidget *>(m_earlier), static_cast<QWidget *>(m_place),
                        static_cast<QWidget *>(m_later)}) {
    part->setVisible(count > 1);
  }
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
