// SPDX-License-Identifier: Apache-2.0
// Reads the numbers before the toolkit does: it makes pictures of such sizes, and sums overflow.

#include "platform/ui/ResourceBounds.h"

#include <QRegularExpression>
#include <QStringList>
#include <QWidget>
#include <QXmlStreamReader>

namespace orvek {
namespace {

bool isLengthElement(QStringView element) {
  return element == u"x" || element == u"y" || element == u"width" || element == u"height" ||
         element == u"pointsize";
}

bool isLengthName(const QString &name) {
  static const QRegularExpression lengths(
      QStringLiteral("width|height|margin|spacing|indent|size|pixel"),
      QRegularExpression::CaseInsensitiveOption);
  return lengths.match(name).hasMatch();
}

/// Text that is no number is the toolkit's to judge; one that overflows is no length.
bool isWithin(const QString &text, int limit) {
  static const QRegularExpression number(QStringLiteral("\\A\\s*[-+]?\\d+"));
  if (!number.match(text).hasMatch()) return true;
  bool isNumber = false;
  const int value = text.trimmed().section(u'.', 0, 0).toInt(&isNumber);
  return isNumber && value <= limit && value >= -limit;
}

/// Layouts give these as attributes, several in one: "0,120,0".
bool areAttributesWithin(const QXmlStreamAttributes &attributes) {
  for (const QXmlStreamAttribute &attribute : attributes) {
    if (!isLengthName(attribute.name().toString())) continue;
    for (const QString &part : attribute.value().toString().split(u',')) {
      if (!isWithin(part, longestInResource)) return false;
    }
  }
  return true;
}

/// Follows where in the resource the reader is.
class LengthReader {
 public:
  explicit LengthReader(const QByteArray &ui) : m_xml(ui) {}

  QString problem() {
    while (!m_xml.atEnd()) {
      if (!isNextWithin()) {
        return QStringLiteral("line %1: a length beyond %2 pixels")
            .arg(m_xml.lineNumber())
            .arg(longestInResource);
      }
    }
    return {};
  }

 private:
  bool isNextWithin() {
    const auto token = m_xml.readNext();
    if (token == QXmlStreamReader::StartElement) {
      m_element = m_xml.name().toString();
      if (m_element == u"property") m_property = m_xml.attributes().value("name").toString();
      return areAttributesWithin(m_xml.attributes());
    }
    if (token == QXmlStreamReader::EndElement) m_element.clear();
    if (token != QXmlStreamReader::Characters) return true;
    const bool isNumberOfLength =
        (m_element == u"number" || m_element == u"double") && isLengthName(m_property);
    if (!isNumberOfLength && !isLengthElement(m_element)) return true;
    const bool isGreatest = m_property.startsWith(u"maximum");
    return isWithin(m_xml.text().toString(), isGreatest ? QWIDGETSIZE_MAX : longestInResource);
  }

  QXmlStreamReader m_xml;
  QString m_element;
  QString m_property;
};

}  // namespace

QString lengthProblem(const QByteArray &ui) {
  return LengthReader(ui).problem();
}

}  // namespace orvek
