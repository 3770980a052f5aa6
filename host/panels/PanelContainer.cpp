// SPDX-License-Identifier: Apache-2.0
// Keeps a panel's view at the origin and itself at the view's size.

#include "host/panels/PanelContainer.h"

namespace orvek {

PanelContainer::PanelContainer(QWidget *parent) : QWidget(parent) {
  setObjectName(QStringLiteral("panelContainer"));
}

PanelContainer::~PanelContainer() {
  // A widget deletes its children; this one is the panel's to delete.
  if (m_view && m_view->parentWidget() == this) m_view->setParent(nullptr);
}

void PanelContainer::hold(QWidget *view) {
  if (view == nullptr) return;
  if (view->parentWidget() != this) {
    m_view = view;
    view->setParent(this);
    view->show();
  }
  makeRoom();
}

void PanelContainer::makeRoom() {
  if (!m_view) return;
  m_view->move(0, 0);
  setFixedSize(m_view->size());
}

}  // namespace orvek
