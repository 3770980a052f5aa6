// SPDX-License-Identifier: Apache-2.0
// A printer as its PPD file describes it: opened once, in the user's language, and kept for a
// session. May touch the file system and libcups; knows nothing of marks.
#pragma once

#include <QString>
#include <memory>

#include "platform/printing/PPD.h"
#include "platform/system/Result.h"

namespace orvek {

/// Owns a parsed PPD. What it hands out is lent and lives as long as this object.
class PrinterDescription {
 public:
  /// Opens and localizes the PPD (plain or gzip). Failures: Io where the file can't be read,
  /// Invalid, with the line, where it is no PPD.
  static Result<std::shared_ptr<PrinterDescription>> open(const QString &path);

  ~PrinterDescription();
  PrinterDescription(const PrinterDescription &) = delete;
  PrinterDescription &operator=(const PrinterDescription &) = delete;

  /// The parsed PPD; never null.
  ppd_file_t *ppd() const { return m_ppd; }

  /// The file it was read from, as it was named.
  const QString &path() const { return m_path; }

  /// The model's name for people: *NickName, else *ModelName. Null where the PPD names neither.
  QString modelName() const;

 private:
  PrinterDescription(QString path, ppd_file_t *ppd);

  QString m_path;
  ppd_file_t *m_ppd;
};

}  // namespace orvek
