// SPDX-License-Identifier: Apache-2.0
// A bundle without panels, written against the installed plug-in interface alone.

#include <orvek/platform/plugin/PDEPlugin.h>
#include <orvek/platform/printing/PPD.h>
#include <orvek/platform/printing/PrintSettings.h>
#include <orvek/platform/system/Log.h>
#include <orvek/platform/ui/Controls.h>
#include <orvek/platform/ui/PopUps.h>

class NoPanels : public PDEPlugin {
 public:
  bool initWithBundle(orvek::Bundle *) override {
    orvek::logLine(QStringLiteral("no panels here"));
    return orvek::numberOfItems(nullptr) == 0;
  }

  QList<std::shared_ptr<PDEPanel>> PDEPanelsForType_withHostInfo(
      const QVariant &, const std::shared_ptr<PDEPluginCallback> &) override {
    return {};
  }
};

PDE_EXPORT_PLUGIN(NoPanels)
