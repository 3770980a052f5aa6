// SPDX-License-Identifier: Apache-2.0
// What a plug-in bundle's factory offers, and how a host finds it in the bundle's code.
#pragma once

#include <QList>
#include <QVariant>
#include <memory>

#include "platform/plugin/PDEPanel.h"
#include "platform/plugin/PDEPluginCallback.h"
#include "platform/ui/Bundle.h"

namespace orvek {

/// The panel type of print dialogs.
inline constexpr const char *printDialogPanelType = "BDB091F4-E57F-11D3-B5CC-0050E4603277";

/// The version of the contract in this folder. A bundle states it as "PluginInterface"; hosts load
/// no code that states another.
inline constexpr int pluginInterfaceVersion = 1;

/// The prefix of the exported function that makes a factory; the class's name follows.
inline constexpr const char *factoryFunctionPrefix = "PDECreate_";

}  // namespace orvek

/// The factory of a bundle. The host makes one, calls initWithBundle, then asks for panels; it owns
/// the factory and calls it on the interface's thread only. A factory that has no panels to give
/// gives an empty list.
class PDEPlugin {
 public:
  virtual ~PDEPlugin();

  /// Hands over the bundle (borrowed, may be null). True on success.
  virtual bool initWithBundle(orvek::Bundle *bundle) = 0;

  /// The panels for a panel type (a text). The list is the panels' only owner.
  virtual QList<std::shared_ptr<PDEPanel>> PDEPanelsForType_withHostInfo(
      const QVariant &type, const std::shared_ptr<PDEPluginCallback> &hostInfo) = 0;
};

/// Exports the function by which hosts make the factory `FactoryClass`.
#define PDE_EXPORT_PLUGIN(FactoryClass)                                                     \
  extern "C" __attribute__((visibility("default"))) PDEPlugin *PDECreate_##FactoryClass() { \
    return new FactoryClass;                                                                \
  }
