// SPDX-License-Identifier: Apache-2.0
// Values out of the XML that printers answer with.

#include "Common/Utilities.h"
#include "platform/xml/Nodes.h"

pugi::xml_node XMLTreeFind(pugi::xml_node node, const QString &name) {
  if (name.isNull()) return {};
  do {
    node = orvek::nextNode(node);
  } while (node && (orvek::nodeName(node).isNull() || orvek::nodeName(node) != name));
  return node;
}

QString GetOVGValue(pugi::xml_node node, const QString &name) {
  return orvek::stringValue(XMLTreeFind(node, name));
}

pugi::xml_node XMLTreeFindWithName(pugi::xml_node element, const QString &value) {
  if (value.isNull()) return {};
  for (const pugi::xml_attribute &attribute : element.attributes()) {
    if (QString::fromUtf8(attribute.value()) == value) return element;
  }
  // A match further down is never handed up, so there is nothing to look for below the element.
  return {};
}

QString XMLGetPropertyValue(pugi::xml_node tree) {
  const pugi::xml_node first = tree.first_child();
  const pugi::xml_node second = first.next_sibling();
  const pugi::xml_node value = (second ? second : first).first_child();
  return value ? orvek::nodeString(value) : QStringLiteral("");
}

QString removeColonFromString(const QString &text) {
  return text.chopped(std::min<qsizetype>(1, text.size()));
}
