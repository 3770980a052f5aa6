// SPDX-License-Identifier: Apache-2.0
// A vocabulary of XML nodes over pugixml, which never opens a file for an entity. Nothing here
// recurses, so depth costs no stack.
#pragma once

#include <QString>
#include <pugixml.hpp>

namespace orvek {

/// The node after `node` in document order: its first child, else the next sibling of it or of the
/// nearest ancestor that has one. Null at the end of the document, and for a null node.
pugi::xml_node nextNode(const pugi::xml_node &node);

/// The node's name: an element's tag, a processing instruction's target; null for all other nodes.
QString nodeName(const pugi::xml_node &node);

/// The node's string value: all text below an element or a document, in order; the content of other
/// nodes. Null for a null node.
QString stringValue(const pugi::xml_node &node);

/// The string of a tree's node: a text's or comment's content, otherwise the name.
QString nodeString(const pugi::xml_node &node);

}  // namespace orvek
