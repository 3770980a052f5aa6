// SPDX-License-Identifier: Apache-2.0
// How much room an interface takes whose text is larger than the usual one.
#pragma once

namespace orvek {

/// 1 for the application's font at a usual size and below, more for larger text. For the
/// interface's thread.
double textScale();

/// Pixels that hold text, grown with the text.
int scaledToText(int pixels);

}  // namespace orvek
