// SPDX-License-Identifier: Apache-2.0
// Whether a picture is worth being given to the library that reads it, which complains of a damaged
// one on the standard error, in words of its own and as often as it finds something.
#pragma once

#include <QByteArray>

namespace orvek {

/// Whether `bytes` are a PNG from its signature to its end, every part of it with its right
/// checksum. What the parts say is for the library to judge.
bool isWholePng(const QByteArray &bytes);

}  // namespace orvek
