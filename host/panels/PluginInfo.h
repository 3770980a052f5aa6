// SPDX-License-Identifier: Apache-2.0
// What a plug-in bundle says of itself, checked before any of its code is loaded.
#pragma once

#include <QString>
#include <memory>

#include "platform/system/Result.h"
#include "platform/ui/Bundle.h"

namespace orvek {

/// The checked metadata of a bundle, which it shares. Plain data besides; a bundle that won't do
/// never gets one.
struct PluginInfo {
  std::shared_ptr<Bundle> bundle;

  /// Unique among plug-ins; the bundle's path where Info.json names none.
  QString identifier;

  /// The factory's class, a C++ identifier.
  QString principalClass;

  /// Absolute path of the code, inside the bundle.
  QString executable;
};

/// Reads and checks a bundle's Info.json: the factory's class, the code's file (a plain name of a
/// file that lies inside the bundle, links followed) and the version of the plug-in interface.
/// Invalid failures name the bundle's file and what to do.
Result<PluginInfo> readPluginInfo(const QString &bundlePath);

}  // namespace orvek
