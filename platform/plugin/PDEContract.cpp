// SPDX-License-Identifier: Apache-2.0
// Homes of the contract's classes: one place for their type identities, and the null-safe calls.

#include "platform/plugin/PDEInspection.h"
#include "platform/plugin/PDEPanel.h"
#include "platform/plugin/PDEPlugin.h"
#include "platform/plugin/PDEPluginCallback.h"

PDEPluginCallback::~PDEPluginCallback() = default;
PDEPanelResizeObserver::~PDEPanelResizeObserver() = default;
PDEPanel::~PDEPanel() = default;
PDEInspection::~PDEInspection() = default;
PDEPlugin::~PDEPlugin() = default;

namespace orvek {

bool respondsToPanelViewDidResize(PDEPluginCallback *callback) {
  return dynamic_cast<PDEPanelResizeObserver *>(callback) != nullptr;
}

ppd_file_t *ppdFile(PDEPluginCallback *callback) {
  return callback == nullptr ? nullptr : callback->ppdFile();
}

PMPrintSession printSession(PDEPluginCallback *callback) {
  return callback == nullptr ? nullptr : callback->printSession();
}

PMPrintSettings printSettings(PDEPluginCallback *callback) {
  return callback == nullptr ? nullptr : callback->printSettings();
}

void willChangePPDOption(PDEPluginCallback *callback, const QString &key, const QString &choice) {
  if (callback != nullptr) callback->willChangePPDOptionKeyValue_ppdChoice(key, choice);
}

void panelViewDidResize(PDEPluginCallback *callback) {
  if (auto *observer = dynamic_cast<PDEPanelResizeObserver *>(callback)) {
    observer->panelViewDidResize();
  }
}

}  // namespace orvek
