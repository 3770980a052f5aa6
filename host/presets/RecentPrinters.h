// SPDX-License-Identifier: Apache-2.0
// Which printers the user printed on last, kept with the presets.
#pragma once

#include <QString>
#include <QStringList>

#include "platform/system/Result.h"

namespace orvek {

/// A small file in the user's data folder, read and written at every call and replaced as a whole,
/// so that two programs can share it. Holds nothing open and has no locks. A file that can't be
/// read as such gives nothing, and the next printer takes its place: nobody misses what it held.
class RecentPrinters {
 public:
  /// The folder is made when first written to; without one it is that of the presets.
  explicit RecentPrinters(const QString &folder = {});

  /// "NAME/INSTANCE", the last one first.
  QStringList destinations() const;

  /// Puts it first, and drops the oldest where there are too many. Fails where the file can't be
  /// written.
  Status add(const QString &destination);

 private:
  QString m_folder;
};

}  // namespace orvek
