// SPDX-License-Identifier: Apache-2.0
// Picture at the left, two lines beside it.

#include "host/dialog/DocumentHeader.h"

#include <QGridLayout>
#include <QPushButton>
#include <QTimer>
#include <utility>

#include "host/dialog/ElidedLabel.h"
#include "platform/ui/PlainText.h"
#include "platform/ui/TextScale.h"

namespace orvek {
namespace {

constexpr int pictureSize = 32;
constexpr int leastNameWidth = 160;
constexpr int gap = 10;

}  // namespace

DocumentHeader::DocumentHeader(QWidget *parent)
    : QWidget(parent),
      m_picture(new PlainLabel(this)),
      m_name(new ElidedLabel(Qt::ElideMiddle, this)),
      m_detail(new PlainLabel(this)),
      m_action(new QPushButton(this)),
      m_grid(new QGridLayout(this)) {
  m_picture->setAccessibleName(tr("Document"));
  m_picture->hide();
  m_name->setMinimumWidth(scaledToText(leastNameWidth));
  m_action->setObjectName(QStringLiteral("documentAction"));
  m_action->setAutoDefault(false);
  m_action->hide();
  auto *grid = m_grid;
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(gap);
  grid->setVerticalSpacing(0);
  grid->addWidget(m_picture, 0, 0, 2, 1);
  grid->addWidget(m_name, 0, 1);
  grid->addWidget(m_detail, 1, 1);
  grid->addWidget(m_action, 0, 2, 2, 1);
  grid->setColumnStretch(1, 1);
  connect(m_action, &QPushButton::clicked, this, &DocumentHeader::actionAsked);
}

void DocumentHeader::setPicture(QStyle::StandardPixmap picture) {
  m_waitingPicture = picture;
  m_picture->setFixedSize(pictureSize, pictureSize);
  m_picture->show();
}

void DocumentHeader::paintEvent(QPaintEvent *event) {
  QWidget::paintEvent(event);
  if (m_waitingPicture) QTimer::singleShot(0, this, &DocumentHeader::loadPicture);
}

void DocumentHeader::loadPicture() {
  const auto picture = std::exchange(m_waitingPicture, std::nullopt);
  if (!picture) return;
  m_picture->setPixmap(style()->standardIcon(*picture).pixmap(pictureSize, pictureSize));
}

void DocumentHeader::setTexts(const QString &name, const QString &detail) {
  m_name->setWholeText(name);
  m_detail->setText(detail);
}

void DocumentHeader::setAction(const QString &text) {
  m_action->setText(text);
  m_action->setAccessibleName(text);
  m_action->setVisible(!text.isNull());
}

void DocumentHeader::addButton(QWidget *button) {
  constexpr int lastColumn = 3;
  m_grid->addWidget(button, 0, lastColumn, 2, 1);
}

QString pagesInWords(int pages) {
  if (pages < 1) return {};
  return pages == 1 ? DocumentHeader::tr("1 page") : DocumentHeader::tr("%n pages", nullptr, pages);
}

}  // namespace orvek
