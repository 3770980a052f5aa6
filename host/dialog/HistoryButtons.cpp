// SPDX-License-Identifier: Apache-2.0
// Two buttons with menus.

#include "host/dialog/HistoryButtons.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>
#include <QToolButton>

#include "host/session/PrintSession.h"
#include "host/settings/Mnemonics.h"
#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

// A longer list is no help.
constexpr int mostListed = 15;

QString firstWords(const QList<HistoryEntry> &entries) {
  return entries.isEmpty() ? QString() : entries.constFirst().words;
}

// For a desktop whose icons lack it: an arrow that turns back, or its mirror image.
QIcon arrow(const QPalette &palette, bool isForward) {
  constexpr int size = 16;
  constexpr int density = 2;
  constexpr qreal penWidth = 1.6;
  QPixmap picture(size * density, size * density);
  picture.setDevicePixelRatio(density);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  if (isForward) painter.setTransform(QTransform(-1, 0, 0, 1, size, 0));
  QPainterPath path(QPointF(3, 6));
  path.lineTo(10, 6);
  path.cubicTo(QPointF(15, 6), QPointF(15, 13), QPointF(10, 13));
  path.lineTo(7, 13);
  path.moveTo(6.5, 2.5);
  path.lineTo(3, 6);
  path.lineTo(6.5, 9.5);
  const QColor colour = palette.color(QPalette::ButtonText);
  painter.setPen(QPen(colour, penWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(path);
  return QIcon(picture);
}

void name(QToolButton *button, const QString &title, const QString &words) {
  button->setAccessibleName(title);
  button->setAccessibleDescription(words);
  const QString tip = words.isEmpty() ? title : HistoryButtons::tr("%1: %2").arg(title, words);
  button->setToolTip(plainToolTip(tip));
  button->setEnabled(!words.isEmpty());
}

}  // namespace

HistoryButtons::HistoryButtons(PrintSession &session, QWidget *parent)
    : QWidget(parent), m_session(session), m_undo(nullptr), m_redo(nullptr) {
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  m_undo = addButton(Direction::Back);
  m_undo->setObjectName(QStringLiteral("historyUndo"));
  m_undo->setIcon(QIcon::fromTheme(QStringLiteral("edit-undo"), arrow(palette(), false)));
  m_redo = addButton(Direction::Forward);
  m_redo->setObjectName(QStringLiteral("historyRedo"));
  m_redo->setIcon(QIcon::fromTheme(QStringLiteral("edit-redo"), arrow(palette(), true)));
  connect(&session, &PrintSession::changed, this, &HistoryButtons::follow);
  follow();
}

QToolButton *HistoryButtons::addButton(Direction direction) {
  auto *button = new QToolButton(this);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::StrongFocus);
  button->setPopupMode(QToolButton::MenuButtonPopup);
  button->setMenu(new QMenu(button));
  button->menu()->setToolTipsVisible(true);
  connect(button, &QToolButton::clicked, this, [this, direction] { go(direction, 1); });
  connect(button->menu(), &QMenu::aboutToShow, this,
          [this, direction, button] { list(direction, button); });
  layout()->addWidget(button);
  return button;
}

void HistoryButtons::go(Direction direction, int acts) {
  direction == Direction::Back ? m_session.undo(acts) : m_session.redo(acts);
}

void HistoryButtons::list(Direction direction, QToolButton *button) {
  QMenu *menu = button->menu();
  menu->clear();
  const History &history = m_session.history();
  const auto entries = direction == Direction::Back ? history.done() : history.undone();
  for (int place = 0; place < entries.size() && place < mostListed; ++place) {
    QAction *action = menu->addAction(withoutMnemonic(entries[place].words));
    connect(action, &QAction::triggered, this,
            [this, direction, place] { go(direction, place + 1); });
  }
}

void HistoryButtons::follow() {
  name(m_undo, tr("Undo"), firstWords(m_session.history().done()));
  name(m_redo, tr("Redo"), firstWords(m_session.history().undone()));
}

}  // namespace orvek
