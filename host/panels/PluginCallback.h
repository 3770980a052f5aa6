// SPDX-License-Identifier: Apache-2.0
// The callback objects that panels are given: what a panel may ask of the session, and what it
// tells.
#pragma once

#include <memory>

#include "platform/plugin/PDEPluginCallback.h"

namespace orvek {

/// What callback objects pass on to, on the interface's thread. Implemented by the session. Is
/// borrowed and owns nothing by it; its calls do not fail.
class PanelListener {
 public:
  virtual ~PanelListener();

  /// A panel announced a choice (empty or null: none). True where it was marked.
  virtual bool choiceAnnounced(const QString &option, const QString &choice) = 0;

  /// A panel's root view has changed its size.
  virtual void panelResized() = 0;
};

/// What the session lends to panels through a callback object, whose ticket it shares; each may be
/// null. Plain data besides.
struct PanelLoan {
  /// PrinterDescription::lend(): the only place outside host/ppd that knows libcups' type.
  ppd_file_t *ppd = nullptr;
  PMPrintSession session = nullptr;
  std::shared_ptr<Ticket> ticket;
};

/// The callback object of a host that does not let panels change their size. Borrows the listener
/// and the loan until detach(), owns its plug-in's handle on the ticket, and is counted: panels and
/// host keep it. Belongs to the interface's thread. Detached, it is inert. Calls do not fail: what
/// was not marked is false.
class PluginCallback : public PDEPluginCallback {
 public:
  /// Makes one; `resizing` decides whether it answers panelViewDidResize.
  static std::shared_ptr<PluginCallback> make(PanelListener *listener, PanelLoan loan,
                                              bool resizing);

  PluginCallback(PanelListener *listener, PanelLoan loan);

  /// The session ends before the last panel has let go: from now on there is nothing to ask or
  /// tell.
  void detach();

  ppd_file_t *ppdFile() override { return m_loan.ppd; }
  PMPrintSession printSession() override { return m_loan.session; }
  PMPrintSettings printSettings() override { return m_settings.get(); }
  bool willChangePPDOptionKeyValue_ppdChoice(const QString &key, const QString &choice) override;

 protected:
  PanelListener *m_listener;

 private:
  PanelLoan m_loan;
  /// This plug-in's own writer.
  std::unique_ptr<PrintSettings> m_settings;
};

/// As above, of a host that makes room for panels as they grow and shrink. Ownership, thread and
/// failure are as above.
class ResizingPluginCallback final : public PluginCallback, public PDEPanelResizeObserver {
 public:
  using PluginCallback::PluginCallback;
  void panelViewDidResize() override;
};

}  // namespace orvek
