// SPDX-License-Identifier: Apache-2.0
// Borrows a panel's container and lays it out.

#include "host/dialog/PanelPage.h"

#include <QVBoxLayout>

namespace orvek {
namespace {

// A panel brings its own margins left and right; above and below it has less.
constexpr int marginAboveAndBelow = 6;

}  // namespace

PanelPage::PanelPage(PanelContainer *container, QWidget *parent)
    : QWidget(parent), m_container(container) {
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(0, marginAboveAndBelow, 0, marginAboveAndBelow);
  column->setSpacing(0);
  column->addWidget(container, 0, Qt::AlignHCenter | Qt::AlignTop);
  column->addStretch(1);
  container->show();
}

PanelPage::~PanelPage() {
  if (m_container && m_container->parentWidget() == this) m_container->setParent(nullptr);
}

}  // namespace orvek
