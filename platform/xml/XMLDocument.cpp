// SPDX-License-Identifier: Apache-2.0
// Parses, then checks what the parser passes over. The check looks at the text before references
// are expanded, so the document is parsed a second time for the reader.

#include "platform/xml/XMLDocument.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "platform/xml/Nodes.h"

namespace orvek {
namespace {

using Document = std::shared_ptr<const pugi::xml_document>;

constexpr unsigned int readerOptions = pugi::parse_default | pugi::parse_ws_pcdata;
constexpr unsigned int checkerOptions =
    (readerOptions & ~(pugi::parse_escapes | pugi::parse_wconv_attribute)) | pugi::parse_fragment |
    pugi::parse_doctype;

bool isDigits(std::string_view text, std::string_view digits) {
  return !text.empty() && text.find_first_not_of(digits) == std::string_view::npos;
}

/// The text between "&" and ";". Entities of the document's own type may have any name.
bool isReference(std::string_view name, bool hasDoctype) {
  constexpr std::array<std::string_view, 5> predefined{"amp", "lt", "gt", "quot", "apos"};
  if (name.starts_with("#x")) return isDigits(name.substr(2), "0123456789abcdefABCDEF");
  if (name.starts_with("#")) return isDigits(name.substr(1), "0123456789");
  if (std::find(predefined.begin(), predefined.end(), name) != predefined.end()) return true;
  return hasDoctype && !name.empty() && name.find_first_of(" \t\r\n<&") == std::string_view::npos;
}

bool referencesAreWhole(std::string_view text, bool hasDoctype) {
  for (std::size_t at = text.find('&'); at != std::string_view::npos; at = text.find('&', at + 1)) {
    const std::size_t end = text.find(';', at);
    if (end == std::string_view::npos) return false;
    if (!isReference(text.substr(at + 1, end - at - 1), hasDoctype)) return false;
  }
  return true;
}

bool isBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

/// The name of an attribute that is given more than once; null if there is none.
QString repeatedAttribute(const pugi::xml_node &element) {
  if (!element.first_attribute().next_attribute()) return {};
  std::vector<std::string_view> names;
  for (const pugi::xml_attribute &attribute : element.attributes()) {
    names.emplace_back(attribute.name());
  }
  std::sort(names.begin(), names.end());
  const auto repeated = std::adjacent_find(names.begin(), names.end());
  return repeated == names.end() ? QString() : QString::fromUtf8(repeated->data());
}

/// What is wrong with an element's attributes; null if nothing.
QString attributeProblem(const pugi::xml_node &element, bool hasDoctype) {
  for (const pugi::xml_attribute &attribute : element.attributes()) {
    const std::string_view value = attribute.value();
    if (value.find('<') != std::string_view::npos || !referencesAreWhole(value, hasDoctype)) {
      return QStringLiteral("the attribute \"%1\" holds a bare \"&\" or \"<\"")
          .arg(QString::fromUtf8(attribute.name()));
    }
  }
  const QString twice = repeatedAttribute(element);
  return twice.isNull() ? QString()
                        : QStringLiteral("the attribute \"%1\" is given twice").arg(twice);
}

/// What is wrong with one node; null if nothing.
QString nodeProblem(const pugi::xml_node &node, bool hasDoctype) {
  if (node.type() == pugi::node_element) return attributeProblem(node, hasDoctype);
  if (node.type() != pugi::node_pcdata) return {};
  if (node.parent().type() == pugi::node_document) {
    return isBlank(node.value()) ? QString()
                                 : QStringLiteral("text stands outside the root element");
  }
  if (referencesAreWhole(node.value(), hasDoctype)) return {};
  return QStringLiteral("a \"&\" begins no reference (write \"&amp;\")");
}

struct Problem {
  QString why;
  std::ptrdiff_t offset = 0;
};

/// The first thing that the parser let pass; a null `why` if there is nothing.
Problem findProblem(const pugi::xml_document &document) {
  const pugi::xml_node doctype =
      document.find_child([](const pugi::xml_node &n) { return n.type() == pugi::node_doctype; });
  int roots = 0;
  for (pugi::xml_node node = document.first_child(); node; node = nextNode(node)) {
    const bool isRoot =
        node.type() == pugi::node_element && node.parent().type() == pugi::node_document;
    if (isRoot && ++roots > 1) {
      return {QStringLiteral("there is more than one root element"), node.offset_debug()};
    }
    const QString why = nodeProblem(node, static_cast<bool>(doctype));
    if (!why.isNull()) return {why, node.offset_debug()};
  }
  if (roots == 0) return {QStringLiteral("there is no element"), 0};
  return {};
}

Failure failureAt(const QByteArray &bytes, const QString &what, const Problem &problem) {
  const auto end = bytes.begin() + std::clamp<qsizetype>(problem.offset, 0, bytes.size());
  const auto line = std::count(bytes.begin(), end, '\n') + 1;
  return {FailureKind::Invalid, QStringLiteral("%1:%2").arg(what).arg(line), problem.why};
}

}  // namespace

Result<Document> parseXML(const QByteArray &bytes, const QString &what) {
  const auto size = static_cast<std::size_t>(bytes.size());
  auto document = std::make_shared<pugi::xml_document>();
  const pugi::xml_parse_result checked =
      document->load_buffer(bytes.constData(), size, checkerOptions);
  if (!checked) {
    return failureAt(bytes, what, {QString::fromUtf8(checked.description()), checked.offset});
  }
  if (checked.encoding == pugi::encoding_utf8 && !bytes.isValidUtf8()) {
    return failureAt(bytes, what, {QStringLiteral("the text is not valid UTF-8"), 0});
  }
  const Problem problem = findProblem(*document);
  if (!problem.why.isNull()) return failureAt(bytes, what, problem);
  document->load_buffer(bytes.constData(), size, readerOptions);
  return Document(std::move(document));
}

}  // namespace orvek
