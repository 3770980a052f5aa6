// SPDX-License-Identifier: Apache-2.0
// The first calls to a panel, and its end.

#include "host/panels/HostedPanel.h"

#include <algorithm>
#include <utility>

#include "host/panels/PanelContainer.h"
#include "platform/ui/Frames.h"

namespace orvek {

HostedPanel::HostedPanel(std::shared_ptr<PDEPanel> panel)
    : m_panel(std::move(panel)), m_container(new PanelContainer) {}

HostedPanel::~HostedPanel() {
  // The panel deletes its view, so it goes while the view still has its place.
  m_panel.reset();
  delete m_container;
}

void HostedPanel::open() {
  loadView();
  m_name = m_panel->panelName();
  m_kind = m_panel->panelKind();
  m_claimedOptions = m_panel->supportedPPDOptionKeys();
}

void HostedPanel::start() {
  open();
  m_panel->restoreValuesAndReturnError(nullptr);
  m_panel->willShow();
}

void HostedPanel::loadView() {
  m_view = m_panel->panelView();
  if (m_container) m_container->hold(m_view);
}

QWidget *HostedPanel::view() const {
  return m_view;
}

bool HostedPanel::hasContent() const {
  if (!m_view) return false;
  if (!onlyHoldsViews(m_view)) return true;
  const QList<QWidget *> parts = m_view->findChildren<QWidget *>();
  return std::any_of(parts.begin(), parts.end(), [this](const QWidget *part) {
    return !onlyHoldsViews(part) && part->isVisibleTo(m_view);
  });
}

PanelContainer *HostedPanel::container() const {
  return m_container;
}

bool HostedPanel::claimsAny(const QStringList &options) const {
  return std::any_of(options.begin(), options.end(), [this](const QString &option) {
    return m_claimedOptions.contains(option, Qt::CaseInsensitive);
  });
}

const PDEInspection *HostedPanel::inspection() const {
  return dynamic_cast<const PDEInspection *>(m_panel.get());
}

}  // namespace orvek
