// SPDX-License-Identifier: Apache-2.0
// The bundle's factory: one panel, for print dialogs.
#pragma once

#include "platform/plugin/PDEPlugin.h"

class OrvekFinishingPlugin : public PDEPlugin {
 public:
  /// Keeps the bundle (borrowed) for the panels to come. Never fails, also without one.
  bool initWithBundle(orvek::Bundle *bundle) override;

  /// One new panel for the print-dialog type, spelled exactly; none for anything else. The caller's
  /// list owns it.
  QList<std::shared_ptr<PDEPanel>> PDEPanelsForType_withHostInfo(
      const QVariant &type, const std::shared_ptr<PDEPluginCallback> &hostInfo) override;

 private:
  orvek::Bundle *pluginBundle = nullptr;
};
