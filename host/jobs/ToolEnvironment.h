// SPDX-License-Identifier: Apache-2.0
// What programs that convert, read or draw documents find in their environment.
#pragma once

#include <QProcessEnvironment>

namespace orvek {

/// This program's own environment, but with messages in one language, and without a print server:
/// filters ask one about queues, though they need none, and one that answers nothing would keep
/// them for ever. A value of the caller's; any thread. Nothing fails.
QProcessEnvironment toolEnvironment();

}  // namespace orvek
