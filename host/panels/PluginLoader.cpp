// SPDX-License-Identifier: Apache-2.0
// Brings a bundle's code into the process.

#include "host/panels/PluginLoader.h"

#include <QLibrary>
#include <QSet>
#include <utility>

#include "host/panels/PluginTrust.h"

namespace orvek {
namespace {

using FactoryFunction = PDEPlugin *(*)();

Failure broken(const QString &what, const Phrase &why) {
  return {FailureKind::Invalid, what, why};
}

// The loader's message begins with the path, which the failure names anyway.
Phrase loaderMessage(const QLibrary &code) {
  return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the plug-in's code can't be loaded (%1)"),
                {code.errorString().simplified()});
}

Result<std::unique_ptr<PDEPlugin>> makeFactory(const PluginInfo &info) {
  QLibrary code(info.executable);
  code.setLoadHints(QLibrary::PreventUnloadHint);
  if (!code.load()) return broken(info.executable, loaderMessage(code));
  const QByteArray symbol = QByteArray(factoryFunctionPrefix) + info.principalClass.toLatin1();
  const auto function = reinterpret_cast<FactoryFunction>(code.resolve(symbol.constData()));
  if (function == nullptr) {
    return broken(info.executable,
                  Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "has no factory for the class \"%1\""),
                         {info.principalClass}));
  }
  std::unique_ptr<PDEPlugin> factory(function());
  if (factory && factory->initWithBundle(info.bundle.get())) return factory;
  return broken(
      info.executable,
      Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the plug-in's factory refused its bundle")));
}

}  // namespace

Result<LoadedPlugin> loadPlugin(const QString &bundlePath) {
  Result<PluginInfo> info = readPluginInfo(bundlePath);
  if (!info) return info.failure();
  if (const Status trusted = checkNobodyElseWrites(bundlePath, info.value().executable); !trusted) {
    return trusted.failure();
  }
  Result<std::unique_ptr<PDEPlugin>> factory = makeFactory(info.value());
  if (!factory) return factory.failure();
  return LoadedPlugin{info.take(), factory.take()};
}

PluginHarvest loadPlugins(const QStringList &bundlePaths) {
  PluginHarvest harvest;
  QSet<QString> seen;
  for (const QString &path : bundlePaths) {
    Result<LoadedPlugin> plugin = loadPlugin(path);
    if (!plugin) {
      harvest.failures << plugin.failure();
    } else if (!seen.contains(plugin.value().info.identifier)) {
      seen.insert(plugin.value().info.identifier);
      harvest.plugins << std::make_shared<LoadedPlugin>(plugin.take());
    }
  }
  return harvest;
}

PluginHarvest loadInstalledPlugins(const PluginPlaces &places) {
  PluginHarvest harvest = loadPlugins(findPluginBundles(places));
  const QString built = harvest.plugins.isEmpty() ? findBuiltBundle(places) : QString();
  if (built.isNull()) return harvest;
  const PluginHarvest ofTree = loadPlugins({built});
  harvest.plugins << ofTree.plugins;
  harvest.failures << ofTree.failures;
  return harvest;
}

}  // namespace orvek
