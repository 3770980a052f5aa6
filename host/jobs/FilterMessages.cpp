// SPDX-License-Identifier: Apache-2.0
// One rule per kind of line; the reason is chosen at the end, the most telling first.

#include "host/jobs/FilterMessages.h"

#include <QRegularExpression>

namespace orvek {
namespace {

/// Lines of filters are short; beyond this one is cut rather than kept whole in memory.
constexpr qsizetype kLongestLine = 4096;

const QString kErrorPrefix = QStringLiteral("ERROR: ");
const QString kPagePrefix = QStringLiteral("PAGE: ");
const QString kToolPrefix = QStringLiteral("cupsfilter: ");

bool tellsHowAFilterEnded(const QString &text) {
  static const QRegularExpression ended(
      QStringLiteral("\\(PID [0-9]+\\) (stopped with status|crashed on signal)"));
  return ended.match(text).hasMatch();
}

QString withoutProcessNumber(QString text) {
  static const QRegularExpression number(QStringLiteral(" \\(PID [0-9]+\\)"));
  return text.remove(number);
}

}  // namespace

void FilterMessages::add(const QByteArray &bytes) {
  m_partial += bytes;
  qsizetype start = 0;
  for (qsizetype end = m_partial.indexOf('\n'); end >= 0; end = m_partial.indexOf('\n', start)) {
    addLine(QString::fromUtf8(m_partial.mid(start, end - start)).trimmed());
    start = end + 1;
  }
  m_partial = m_partial.mid(start, kLongestLine);
}

void FilterMessages::addLine(const QString &line) {
  if (line.startsWith(kPagePrefix)) {
    ++m_pages;
  } else if (line.startsWith(kErrorPrefix)) {
    const QString text = line.mid(kErrorPrefix.size());
    (tellsHowAFilterEnded(text) ? m_filterEnd : m_filterError) = text;
  } else if (line.startsWith(kToolPrefix)) {
    addToolLine(line.mid(kToolPrefix.size()));
  }
}

void FilterMessages::addToolLine(const QString &text) {
  static const QRegularExpression untrusted(
      QStringLiteral("^File \"([^\"]+)\" (not available: .*|has insecure permissions)"));
  const auto match = untrusted.match(text);
  if (match.hasMatch())
    m_missingFilter = match.captured(1) + QStringLiteral(" ") + match.captured(2);
  else if (!text.startsWith(QStringLiteral("File \"")))
    m_toolError = text;
}

Failure FilterMessages::reason(const QString &document, const QString &ppdFile,
                               int exitStatus) const {
  if (m_toolError.startsWith(QStringLiteral("Unable to open PPD")))
    return {FailureKind::Invalid, ppdFile, m_toolError.section(QStringLiteral(": "), 1)};
  if (!m_filterError.isEmpty()) return {FailureKind::Io, document, m_filterError};
  if (m_toolError.startsWith(QStringLiteral("Unable to determine MIME type")))
    return {FailureKind::Io, document,
            QStringLiteral("its type is unknown; print a PDF, PostScript, text or image file")};
  if (m_toolError.startsWith(QStringLiteral("No filter to convert"))) {
    if (!m_missingFilter.isEmpty())
      return {FailureKind::Io, ppdFile, QStringLiteral("the filter ") + m_missingFilter};
    const QString type = m_toolError.section(u' ', 5, 5);
    return {FailureKind::Io, document, QStringLiteral("no filter prints the type ") + type};
  }
  if (!m_toolError.isEmpty()) return {FailureKind::Io, document, m_toolError};
  if (!m_filterEnd.isEmpty())
    return {FailureKind::Io, document,
            QStringLiteral("the filter ") + withoutProcessNumber(m_filterEnd)};
  return {FailureKind::Io, document,
          QStringLiteral("the filters ended with status %1").arg(exitStatus)};
}

}  // namespace orvek
