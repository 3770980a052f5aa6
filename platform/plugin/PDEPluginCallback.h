// SPDX-License-Identifier: Apache-2.0
// The host as its panels see it: what a panel may ask for and what it must tell.
#pragma once

#include <QString>

#include "platform/printing/PPD.h"
#include "platform/printing/PrintSessionHandle.h"
#include "platform/printing/PrintSettings.h"

/// The host's callback object. Panels hold a counted reference to it; all that it hands out is
/// lent. One thread, the interface's. Once the host's session has ended it gives nothing and hears
/// nothing.
class PDEPluginCallback {
 public:
  virtual ~PDEPluginCallback();

  /// The printer's parsed and localized PPD, marked as the job stands. Null: no description.
  virtual ppd_file_t *ppdFile() = 0;

  /// The session the dialog belongs to. May be null.
  virtual PMPrintSession printSession() = 0;

  /// The job's ticket, through a handle that is this panel's own writer. May be null.
  virtual PMPrintSettings printSettings() = 0;

  /// The user picked `choice` of the PPD option `key`: the host marks it, applies the PPD's
  /// constraints and records it in the ticket. A null choice means none: nothing is marked.
  /// True where the choice was marked.
  virtual bool willChangePPDOptionKeyValue_ppdChoice(const QString &key, const QString &choice) = 0;
};

/// What a callback object is besides when its host lets panels change their size. A panel finds out
/// whether its host does with respondsToPanelViewDidResize(). The same object, with the same owners
/// and thread.
class PDEPanelResizeObserver {
 public:
  virtual ~PDEPanelResizeObserver();

  /// The root view's frame has changed; the host makes room for it.
  virtual void panelViewDidResize() = 0;
};

namespace orvek {

/// True where the callback object answers panelViewDidResize; false for an absent one.
bool respondsToPanelViewDidResize(PDEPluginCallback *callback);

/// The null-safe vocabulary of the callback object: an absent one gives nothing and hears nothing.
ppd_file_t *ppdFile(PDEPluginCallback *callback);
PMPrintSession printSession(PDEPluginCallback *callback);
PMPrintSettings printSettings(PDEPluginCallback *callback);
void willChangePPDOption(PDEPluginCallback *callback, const QString &key, const QString &choice);
void panelViewDidResize(PDEPluginCallback *callback);

}  // namespace orvek
