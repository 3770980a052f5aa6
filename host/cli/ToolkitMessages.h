// SPDX-License-Identifier: Apache-2.0
// Messages of the toolkit on the standard error, in the shape of the log's lines.
#pragma once

namespace orvek {

/// From now on the toolkit's warnings carry time and process, as every line that is no error does.
/// They are the toolkit's own and no part of the general log. One after which it can't go on is
/// reported as a failure, and the program ends with its status.
void shapeToolkitMessages();

}  // namespace orvek
