// SPDX-License-Identifier: Apache-2.0
// One rule per kind of line; the reason is chosen at the end, the most telling first.

#include "host/jobs/FilterMessages.h"

#include <QRegularExpression>

namespace orvek {
namespace {

/// Lines of filters are short; beyond this one is cut rather than kept whole in memory.
constexpr qsizetype longestLine = 4096;

const QString errorPrefix = QStringLiteral("ERROR: ");
const QString pagePrefix = QStringLiteral("PAGE: ");
const QString toolPrefix = QStringLiteral("cupsfilter: ");

bool tellsHowAFilterEnded(const QString &text) {
  static const QRegularExpression ended(
      QStringLiteral("\\(PID [0-9]+\\) (stopped with status|crashed on signal)"));
  return ended.match(text).hasMatch();
}

// "pstops (PID 7) stopped with status 1", or what else is said of a filter's end.
Phrase endOfFilter(QString text) {
  static const QRegularExpression number(QStringLiteral(" \\(PID [0-9]+\\)"));
  static const QRegularExpression stopped(QStringLiteral("^(.*) stopped with status ([^ ]*)$"));
  static const QRegularExpression crashed(QStringLiteral("^(.*) crashed on signal ([^ ]*)$"));
  text.remove(number);
  if (const auto end = stopped.match(text); end.hasMatch()) {
    return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the filter %1 stopped with status %2"),
                  {end.captured(1), end.captured(2)});
  }
  if (const auto end = crashed.match(text); end.hasMatch()) {
    return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the filter %1 crashed on signal %2"),
                  {end.captured(1), end.captured(2)});
  }
  return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the filter %1"), {text});
}

// `problem`: "has insecure permissions", or "not available: " and the system's reason.
Phrase untrustedFilter(const QString &path, const QString &problem) {
  static const QString missing = QStringLiteral("not available: ");
  if (!problem.startsWith(missing)) {
    return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the filter %1 has insecure permissions"),
                  {path});
  }
  return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the filter %1 not available: %2"),
                {path, Phrase::ofSystem(problem.mid(missing.size()))});
}

// What the filters' libraries say of an encrypted document, each in its own words.
Phrase refusalIn(const QString &line) {
  static const QRegularExpression password(QStringLiteral("\\b(invalid|incorrect) password$"),
                                           QRegularExpression::CaseInsensitiveOption);
  if (password.match(line).hasMatch()) {
    return Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                    "it needs a password; print it from a program that opens it "
                                    "with that password"));
  }
  if (line == QStringLiteral("Not allowed to print")) {
    return Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                    "whoever made it has encrypted it and does not allow that it "
                                    "is printed"));
  }
  return {};
}

}  // namespace

void FilterMessages::add(const QByteArray &bytes) {
  m_partial += bytes;
  qsizetype start = 0;
  for (qsizetype end = m_partial.indexOf('\n'); end >= 0; end = m_partial.indexOf('\n', start)) {
    addLine(QString::fromUtf8(m_partial.mid(start, end - start)).trimmed());
    start = end + 1;
  }
  m_partial = m_partial.mid(start, longestLine);
}

void FilterMessages::addLine(const QString &line) {
  if (const Phrase refusal = refusalIn(line); !refusal.isEmpty()) {
    m_refusal = refusal;
  } else if (line.startsWith(pagePrefix)) {
    ++m_pages;
  } else if (line.startsWith(errorPrefix)) {
    const QString text = line.mid(errorPrefix.size());
    (tellsHowAFilterEnded(text) ? m_filterEnd : m_filterError) = text;
  } else if (line.startsWith(toolPrefix)) {
    addToolLine(line.mid(toolPrefix.size()));
  }
}

void FilterMessages::addToolLine(const QString &text) {
  static const QRegularExpression untrusted(
      QStringLiteral("^File \"([^\"]+)\" (not available: .*|has insecure permissions)"));
  const auto match = untrusted.match(text);
  if (match.hasMatch()) {
    m_missingFilter = untrustedFilter(match.captured(1), match.captured(2));
  } else if (!text.startsWith(QStringLiteral("File \""))) {
    m_toolError = text;
  }
}

Failure FilterMessages::reason(const Phrase &document, const QString &ppdFile,
                               int exitStatus) const {
  if (m_toolError.startsWith(QStringLiteral("Unable to open PPD"))) {
    return {FailureKind::Invalid, ppdFile, m_toolError.section(QStringLiteral(": "), 1)};
  }
  if (!m_refusal.isEmpty()) return {FailureKind::Io, document, m_refusal};
  if (!m_filterError.isEmpty()) return {FailureKind::Io, document, m_filterError};
  if (m_toolError.startsWith(QStringLiteral("Unable to determine MIME type"))) {
    return {
        FailureKind::Io, document,
        Phrase(QT_TRANSLATE_NOOP(
            "orvek::Failure", "its type is unknown; print a PDF, PostScript, text or image file"))};
  }
  if (m_toolError.startsWith(QStringLiteral("No filter to convert"))) {
    if (!m_missingFilter.isEmpty()) return {FailureKind::Io, ppdFile, m_missingFilter};
    const QString type = m_toolError.section(u' ', 5, 5);
    return {FailureKind::Io, document,
            Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "no filter prints the type %1"), {type})};
  }
  if (!m_toolError.isEmpty()) return {FailureKind::Io, document, m_toolError};
  if (!m_filterEnd.isEmpty()) return {FailureKind::Io, document, endOfFilter(m_filterEnd)};
  return {FailureKind::Io, document,
          Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the filters ended with status %1"),
                 {QString::number(exitStatus)})};
}

}  // namespace orvek
