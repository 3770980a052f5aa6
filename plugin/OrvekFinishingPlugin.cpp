// SPDX-License-Identifier: Apache-2.0
// The factory and the function by which hosts find it.

#include "plugin/OrvekFinishingPlugin.h"

#include "panel/OrvekFinishing.h"

using namespace orvek;

bool OrvekFinishingPlugin::initWithBundle(Bundle *bundle) {
  pluginBundle = bundle;
  return true;
}

QList<std::shared_ptr<PDEPanel>> OrvekFinishingPlugin::PDEPanelsForType_withHostInfo(
    const QVariant &type, const std::shared_ptr<PDEPluginCallback> &hostInfo) {
  QList<std::shared_ptr<PDEPanel>> panels;
  if (type != QVariant(QLatin1String(printDialogPanelType))) return panels;
  const auto bundle = pluginBundle == nullptr ? nullptr : pluginBundle->shared_from_this();
  if (auto panel = OrvekFinishing::initWithCallback_andBundle(hostInfo, bundle)) {
    panels.append(std::move(panel));
  }
  return panels;
}

PDE_EXPORT_PLUGIN(OrvekFinishingPlugin)
