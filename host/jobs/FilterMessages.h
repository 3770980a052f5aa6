// SPDX-License-Identifier: Apache-2.0
// Understands what the CUPS filters and the tool that runs them say on standard error.
#pragma once

#include <QByteArray>
#include <QString>

#include "platform/system/Result.h"

namespace orvek {

/// Takes standard error as it comes, in pieces of any size, and remembers only what a failure's
/// reason needs, so that a talkative filter costs no memory. A value without borrowed parts; use it
/// on one thread.
class FilterMessages {
 public:
  void add(const QByteArray &bytes);

  /// Pages that the filters have reported so far.
  int pages() const { return m_pages; }

  /// Why a chain that ended with `exitStatus` failed: that the document is encrypted, the filter's
  /// own last error, or the tool's reason in plain words. `document` and `ppdFile` name what is to
  /// blame.
  Failure reason(const Phrase &document, const QString &ppdFile, int exitStatus) const;

 private:
  void addLine(const QString &line);
  void addToolLine(const QString &text);

  QByteArray m_partial;
  /// Why filters must not print the document.
  Phrase m_refusal;
  /// A filter's own words.
  QString m_filterError;
  /// Which filter ended badly.
  QString m_filterEnd;
  /// The tool's words.
  QString m_toolError;
  /// The printer's filter that is missing or not trusted.
  Phrase m_missingFilter;
  int m_pages = 0;
};

}  // namespace orvek
