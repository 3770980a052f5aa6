// SPDX-License-Identifier: Apache-2.0
// Options of a command line that are about job settings.
#pragma once

#include <QMap>
#include <QString>

#include "host/ticket/JobSettings.h"
#include "platform/system/Result.h"

namespace orvek {

/// Kept as they were written: a job that nobody changed since carries the very same words. A value
/// of its own, for any thread. Only take() fails.
struct AskedOptions {
  /// Name to value, as written; but page ranges whose numbers are too long, as they are read.
  QMap<QString, QString> words;
  /// What they come to.
  JobSettings settings;

  /// Reads one of the options that jobSettingOptions() (JobOptions.h) writes, or one that lp's
  /// users know for the same ("landscape", "multiple-document-handling"). False where it is none of
  /// them, and nothing changes; a Usage failure where its value makes no sense.
  Result<bool> take(const QString &name, const QString &value);
};

}  // namespace orvek
