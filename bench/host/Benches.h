// SPDX-License-Identifier: Apache-2.0
// The parts of the table.
#pragma once

namespace bench {

/// Letters for controls: labels that are left without one, against handing out the first free
/// letter.
void benchMnemonics();

}  // namespace bench
