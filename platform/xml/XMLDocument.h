// SPDX-License-Identifier: Apache-2.0
// Reads a document, and refuses what is not well-formed (XML 1.0, section 2.1) where pugixml alone
// would let it pass.
#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <pugixml.hpp>

#include "platform/system/Result.h"

namespace orvek {

/// The document in `bytes`, white space kept; UTF-8, or the encoding that a byte order mark or the
/// XML declaration names. `what` names it in a failure, which tells the line and is of the kind
/// Invalid: tags that don't match, no root or more than one, text beside the root, an attribute
/// given twice, "&" or "<" where they may not stand, bytes that are no UTF-8.
Result<std::shared_ptr<const pugi::xml_document>> parseXML(const QByteArray &bytes,
                                                           const QString &what);

}  // namespace orvek
