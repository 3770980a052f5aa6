// SPDX-License-Identifier: Apache-2.0
// The content fills the page and scrolls where the window is too small for it.

#include "host/dialog/LazyPage.h"

#include <QVBoxLayout>
#include <utility>

#include "host/dialog/ScrollingBody.h"

namespace orvek {

LazyPage::LazyPage(Maker maker, QWidget *parent) : QWidget(parent), m_maker(std::move(maker)) {}

void LazyPage::showEvent(QShowEvent *event) {
  if (m_maker) {
    const Maker maker = std::exchange(m_maker, {});
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(new ScrollingBody(maker(this), this));
    // At once, so that bars which the page doesn't need are not seen for a moment.
    column->activate();
  }
  QWidget::showEvent(event);
}

}  // namespace orvek
