// SPDX-License-Identifier: Apache-2.0
// Holds an option array of libcups.
#pragma once

#include <cups/cups.h>

#include <QMap>
#include <QString>

namespace orvek {

/// Owns the array. Names are compared as libcups does, without regard to case. Use it on one
/// thread; nothing of it fails.
class CupsOptions {
 public:
  explicit CupsOptions(const QMap<QString, QString> &options);
  ~CupsOptions();
  CupsOptions(const CupsOptions &) = delete;
  CupsOptions &operator=(const CupsOptions &) = delete;

  /// Adds those of `options` that are not there yet.
  void addMissing(const QMap<QString, QString> &options);

  /// An option's value, or null.
  const char *value(const char *name) const { return cupsGetOption(name, m_count, m_options); }

  /// All of them.
  QMap<QString, QString> all() const;

  int count() const { return m_count; }
  cups_option_t *array() const { return m_options; }

 private:
  cups_option_t *m_options = nullptr;
  int m_count = 0;
};

}  // namespace orvek
