// SPDX-License-Identifier: Apache-2.0
// Passes a panel's words on to the session while there is one.

#include "host/panels/PluginCallback.h"

#include <utility>

namespace orvek {

PanelListener::~PanelListener() = default;

std::shared_ptr<PluginCallback> PluginCallback::make(PanelListener *listener, PanelLoan loan,
                                                     bool resizing) {
  if (resizing) return std::make_shared<ResizingPluginCallback>(listener, std::move(loan));
  return std::make_shared<PluginCallback>(listener, std::move(loan));
}

PluginCallback::PluginCallback(PanelListener *listener, PanelLoan loan)
    : m_listener(listener),
      m_loan(std::move(loan)),
      m_settings(m_loan.ticket ? std::make_unique<PrintSettings>(m_loan.ticket) : nullptr) {}

void PluginCallback::detach() {
  m_listener = nullptr;
  m_loan = {};
  m_settings.reset();
}

bool PluginCallback::willChangePPDOptionKeyValue_ppdChoice(const QString &key,
                                                           const QString &choice) {
  return m_listener != nullptr && m_listener->choiceAnnounced(key, choice);
}

void ResizingPluginCallback::panelViewDidResize() {
  if (m_listener != nullptr) m_listener->panelResized();
}

}  // namespace orvek
