// SPDX-License-Identifier: Apache-2.0
// PDFs that can't be printed as they are.
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>

namespace orvek::test {

/// Not a single page, and nothing else wrong with it.
inline QByteArray pdfWithoutPages() {
  return "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
         "2 0 obj<</Type/Pages/Count 0/Kids[]>>endobj\n"
         "xref\n0 3\n0000000000 65535 f \n0000000009 00000 n \n0000000053 00000 n \n"
         "trailer<</Size 3/Root 1 0 R>>\nstartxref\n97\n%%EOF\n";
}

/// Nothing that a repair could begin with.
inline QByteArray pdfBeyondRepair() {
  return "%PDF-1.4\n" + QByteArray(4000, 'x') + "\n";
}

/// Writes a copy of `pdf` that this password opens; false where qpdf is not installed.
inline bool protect(const QString &pdf, const QString &password, const QString &copy) {
  const QStringList arguments{QStringLiteral("--encrypt"),
                              password,
                              QStringLiteral("owner's own"),
                              QStringLiteral("256"),
                              QStringLiteral("--"),
                              pdf,
                              copy};
  return QProcess::execute(QStringLiteral("qpdf"), arguments) == 0;
}

}  // namespace orvek::test
