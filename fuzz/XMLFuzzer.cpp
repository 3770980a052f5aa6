// SPDX-License-Identifier: Apache-2.0
// Documents, and the lookups on those that are well-formed.

#include <cstdlib>

#include "Common/Utilities.h"
#include "platform/xml/XMLDocument.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
  const auto document = orvek::parseXML(bytes, QStringLiteral("input"));
  if (!document) {
    if (document.failure().line().contains(QLatin1Char('\n'))) std::abort();
    return 0;
  }
  const pugi::xml_node root = document.value()->document_element();
  if (root.empty()) std::abort();
  const QString name = QString::fromUtf8(root.name());
  if (GetOVGValue(*document.value(), name).isNull()) std::abort();
  XMLTreeFindWithName(root, name);
  XMLGetPropertyValue(root);
  return 0;
}
