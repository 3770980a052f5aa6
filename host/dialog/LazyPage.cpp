// SPDX-License-Identifier: Apache-2.0
// The content fills the page and scrolls where the window is too small for it.

#include "host/dialog/LazyPage.h"

#include <QScrollArea>
#include <QVBoxLayout>
#include <utility>

namespace orvek {

LazyPage::LazyPage(Maker maker, QWidget *parent) : QWidget(parent), m_maker(std::move(maker)) {}

void LazyPage::showEvent(QShowEvent *event) {
  if (m_maker) {
    const Maker maker = std::exchange(m_maker, {});
    auto *area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(maker(area));
    // The tab's own colour shows through.
    area->viewport()->setAutoFillBackground(false);
    area->widget()->setAutoFillBackground(false);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(area);
  }
  QWidget::showEvent(event);
}

}  // namespace orvek
