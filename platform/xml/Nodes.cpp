// SPDX-License-Identifier: Apache-2.0
// Steps through a tree of nodes.

#include "platform/xml/Nodes.h"

namespace orvek {
namespace {

bool isText(const pugi::xml_node &node) {
  return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

bool hasContent(const pugi::xml_node &node) {
  return isText(node) || node.type() == pugi::node_comment || node.type() == pugi::node_pi ||
         node.type() == pugi::node_doctype;
}

/// The node after `node` and everything below it; null where `node` is `top` or its last part.
pugi::xml_node nodeBehind(pugi::xml_node node, const pugi::xml_node &top) {
  while (node && node != top) {
    if (const pugi::xml_node sibling = node.next_sibling()) return sibling;
    node = node.parent();
  }
  return {};
}

}  // namespace

pugi::xml_node nextNode(const pugi::xml_node &node) {
  if (const pugi::xml_node child = node.first_child()) return child;
  return nodeBehind(node, {});
}

QString nodeName(const pugi::xml_node &node) {
  const bool named = node.type() == pugi::node_element || node.type() == pugi::node_pi;
  return named ? QString::fromUtf8(node.name()) : QString();
}

QString stringValue(const pugi::xml_node &node) {
  if (!node) return {};
  if (hasContent(node)) return QString::fromUtf8(node.value());
  QByteArray text("");
  pugi::xml_node at = node.first_child();
  while (at) {
    if (isText(at)) text += at.value();
    const pugi::xml_node child = at.first_child();
    at = child ? child : nodeBehind(at, node);
  }
  return QString::fromUtf8(text);
}

QString nodeString(const pugi::xml_node &node) {
  const bool content = isText(node) || node.type() == pugi::node_comment;
  return QString::fromUtf8(content ? node.value() : node.name());
}

}  // namespace orvek
