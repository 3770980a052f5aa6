// SPDX-License-Identifier: Apache-2.0
// A printer's filter that keeps what it was told, for tests of what reaches a driver.
#pragma once

#include <QMap>
#include <QString>
#include <QTemporaryDir>

namespace orvek::test {

/// A filter program and a PPD file that names it. CUPS runs only filters that nobody but their
/// owner can write, so both lie in a folder of their own.
class CapturingFilter {
 public:
  /// Writes filter and PPD. `script` is what the filter does besides keeping its options; "cat"
  /// passes the document on.
  explicit CapturingFilter(const QString &script = QStringLiteral("cat ${6:+\"$6\"}"));

  /// The PPD of an Orvek 6180 whose driver is this filter.
  QString ppdFile() const { return m_folder.filePath(QStringLiteral("capturing.ppd")); }

  /// The options that the filter was run with, as a filter reads them.
  QMap<QString, QString> options() const;

  /// One of the filter's arguments as it came, 1 to 6.
  QString argument(int number) const;

  /// A folder that the filter may write into, whoever it runs as.
  QString scratch() const { return m_folder.filePath(QStringLiteral("scratch")); }

 private:
  QTemporaryDir m_folder;
};

/// Reads a whole file; empty where there is none.
QByteArray contentsOf(const QString &file);

/// Writes a whole file; fails the test where it can't.
void writeContents(const QString &file, const QByteArray &contents);

/// The PPD of an Orvek printer, "6180" and so on, of the project's own.
QString orvekPPD(const QString &model);

/// A document of so many pages that prints quickly.
QByteArray postScriptDocument(int pages);

}  // namespace orvek::test
