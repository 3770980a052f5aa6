// SPDX-License-Identifier: Apache-2.0
// Reads the numbers before the toolkit does: it makes pictures of such sizes, and sums overflow.
// Most resources have no long number at all, which a glance at their bytes tells in no time.

#include "platform/ui/ResourceBounds.h"

#include <QRegularExpression>
#include <QStringList>
#include <QWidget>
#include <QXmlStreamReader>
#include <algorithm>
#include <cstring>
#include <string_view>

namespace orvek {
namespace {

/// Any number of so many digits is within.
constexpr std::ptrdiff_t fewDigits = 4;

bool isDigit(char byte) {
  return byte >= '0' && byte <= '9';
}

bool isOneOf(char byte, const char *bytes) {
  return byte != '\0' && std::strchr(bytes, byte) != nullptr;
}

// Of an element, an attribute, or of one in a list.
bool beginsText(std::string_view before) {
  const std::size_t last = before.find_last_not_of(" \t\r\n+-");
  return last != std::string_view::npos && isOneOf(before[last], ">\"',");
}

// Characters that may be written in another way, and what hides text from a glance.
bool isPlain(std::string_view ui) {
  using namespace std::string_view_literals;
  return ui.find('\0') == std::string_view::npos && ui.find("&#"sv) == std::string_view::npos &&
         ui.find("<!"sv) == std::string_view::npos;
}

/// Whether it shows at once that no length is too long: there are only short numbers, and none that
/// something else follows within its text. False says nothing.
bool isPlainlyWithin(std::string_view ui) {
  if (!isPlain(ui)) return false;
  const char *const end = ui.data() + ui.size();
  const char *begin = std::find_if(ui.data(), end, isDigit);
  while (begin != end) {
    const char *const after = std::find_if_not(begin, end, isDigit);
    if (after - begin > fewDigits) return false;
    const bool isAlone = after == end || isOneOf(*after, "<\"'.");
    const auto place = static_cast<std::size_t>(begin - ui.data());
    if (!isAlone && beginsText(ui.substr(0, place))) return false;
    begin = std::find_if(after, end, isDigit);
  }
  return true;
}

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
  const bool isWithin = isPlainlyWithin({ui.constData(), static_cast<std::size_t>(ui.size())});
  return isWithin ? QString() : LengthReader(ui).problem();
}

}  // namespace orvek
