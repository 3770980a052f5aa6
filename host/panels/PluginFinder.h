// SPDX-License-Identifier: Apache-2.0
// Where plug-in bundles are looked for. Never in the current folder: whoever can write there could
// otherwise run code in a print dialog.
#pragma once

#include <QString>
#include <QStringList>

namespace orvek {

/// The folders and environment that decide where bundles are found. Plain data.
struct PluginPlaces {
  /// Absolute: the folder of the running program.
  QString programFolder;

  /// The value of ORVEK_PRINT_PLUGIN_PATH: folders separated by ":".
  QString environmentPath;

  /// Those of the running program.
  static PluginPlaces ofThisProgram();
};

/// Absolute paths of the bundles in the folders of the environment's path, then in the installed
/// folder, each folder's in alphabetical order. A folder of the path may be a bundle itself; a
/// relative one is passed over.
QStringList findPluginBundles(const PluginPlaces &places);

/// The bundle in the build tree that the program lies in, for a program that no other bundle
/// serves; null where it lies in none.
QString findBuiltBundle(const PluginPlaces &places);

}  // namespace orvek
