// SPDX-License-Identifier: Apache-2.0
// Lengths in an interface resource that no window can have.
#pragma once

#include <QByteArray>
#include <QString>

namespace orvek {

/// The longest side, margin or place of a control in an interface resource, in pixels.
inline constexpr int longestInResource = 16384;

/// Where `ui`, the bytes of an interface resource, asks for a length beyond longestInResource
/// either way: one phrase with the line. Null where it does not, also where it is not well-formed.
/// Greatest sizes may be as great as the toolkit has them.
QString lengthProblem(const QByteArray &ui);

}  // namespace orvek
