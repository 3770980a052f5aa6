// SPDX-License-Identifier: Apache-2.0
// Borrows a panel's container and lays it out in an area that scrolls where it must.

#include "host/dialog/PanelPage.h"

#include <QVBoxLayout>

#include "host/dialog/ScrollingBody.h"
#include "host/dialog/UnderstoodNote.h"

namespace orvek {
namespace {

// A panel brings its own margins left and right; above and below it has less.
constexpr int marginAboveAndBelow = 6;

}  // namespace

PanelPage::PanelPage(PanelContainer *container, QWidget *parent)
    : QWidget(parent), m_container(container) {
  auto *body = new QWidget(this);
  auto *column = new QVBoxLayout(body);
  column->setContentsMargins(0, marginAboveAndBelow, 0, marginAboveAndBelow);
  column->setSpacing(0);
  column->addWidget(container, 0, Qt::AlignHCenter | Qt::AlignTop);
  column->addStretch(1);
  container->show();
  auto *whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(new ScrollingBody(body, this));
  new UnderstoodNote(*this);
}

PanelPage::~PanelPage() {
  if (m_container && isAncestorOf(m_container)) m_container->setParent(nullptr);
}

}  // namespace orvek
