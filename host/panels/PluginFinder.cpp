// SPDX-License-Identifier: Apache-2.0
// Lists plug-in bundles.

#include "host/panels/PluginFinder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace orvek {
namespace {

constexpr const char *pathVariable = "ORVEK_PRINT_PLUGIN_PATH";
constexpr const char *installedFolders[] = {"../" ORVEK_PLUGIN_INSTALL_DIR,
                                            "../lib/orvek-print/plugins"};
constexpr const char *buildTreeBundle = "../OrvekFinishing.bundle";

bool isBundle(const QString &path) {
  return path.endsWith(QLatin1String(".bundle")) && QFileInfo(path).isDir();
}

QStringList bundlesIn(const QString &folder) {
  if (!QDir::isAbsolutePath(folder)) return {};
  if (isBundle(folder)) return {QDir::cleanPath(folder)};
  QStringList bundles;
  const QDir dir(folder);
  for (const QString &name :
       dir.entryList({QStringLiteral("*.bundle")}, QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
    bundles << QDir::cleanPath(dir.filePath(name));
  }
  return bundles;
}

}  // namespace

PluginPlaces PluginPlaces::ofThisProgram() {
  return {QCoreApplication::applicationDirPath(), qEnvironmentVariable(pathVariable)};
}

QStringList findPluginBundles(const PluginPlaces &places) {
  QStringList bundles;
  const QDir program(places.programFolder);
  for (const QString &folder : places.environmentPath.split(QLatin1Char(':'), Qt::SkipEmptyParts)) {
    bundles << bundlesIn(folder);
  }
  for (const char *folder : installedFolders) {
    bundles << bundlesIn(QDir::cleanPath(program.filePath(QLatin1String(folder))));
  }
  bundles.removeDuplicates();
  return bundles;
}

QString findBuiltBundle(const PluginPlaces &places) {
  const QDir program(places.programFolder);
  const QString built = QDir::cleanPath(program.filePath(QLatin1String(buildTreeBundle)));
  return isBundle(built) ? built : QString();
}

}  // namespace orvek
