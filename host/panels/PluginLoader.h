// SPDX-License-Identifier: Apache-2.0
// Loads plug-in bundles: checks what they say of themselves, then their code, then makes the
// factory.
#pragma once

#include <QList>
#include <QStringList>
#include <memory>

#include "host/panels/PluginFinder.h"
#include "host/panels/PluginInfo.h"
#include "platform/plugin/PDEPlugin.h"

namespace orvek {

/// A loaded bundle with its factory, which it owns, ready to make panels on the interface's thread.
/// Its code stays loaded for good: panels may have left types and strings behind that outlive them.
/// Calls on the factory do not fail; loadPlugin() does.
struct LoadedPlugin {
  PluginInfo info;
  std::unique_ptr<PDEPlugin> factory;
};

/// Loads one bundle and hands the bundle to its factory. A bundle that others can write is refused
/// (PluginTrust.h). Invalid failures name bundle and file.
Result<LoadedPlugin> loadPlugin(const QString &bundlePath);

/// What came of looking for installed plug-ins: the sound ones, which it shares, and what is wrong
/// with the others. Plain data besides.
struct PluginHarvest {
  QList<std::shared_ptr<LoadedPlugin>> plugins;
  QList<Failure> failures;
};

/// Loads each bundle that loads; of several with one identifier the first.
PluginHarvest loadPlugins(const QStringList &bundlePaths);

/// Loads the bundles that findPluginBundles() lists; where none of them is sound, the build tree's
/// as well.
PluginHarvest loadInstalledPlugins(const PluginPlaces &places);

}  // namespace orvek
