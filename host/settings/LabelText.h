// SPDX-License-Identifier: Apache-2.0
// Labels before their fields: one way to write them on every page.
#pragma once

#include <QString>

namespace orvek {

/// `name` as the label before its field says it: with a colon, as the language of the application
/// writes one, and without mnemonic. A name that brings a colon of its own gets no other.
QString labelText(const QString &name);

/// Where the words of a label end: before its colon and the space that some languages put there.
qsizetype endOfWords(const QString &text);

}  // namespace orvek
