// SPDX-License-Identifier: Apache-2.0
// The program's own icon.
#pragma once

#include <QIcon>

namespace orvek {

/// The icon that was installed beside the program, wherever that is; else the desktop's of this
/// name. Null where there is neither. For the interface's thread.
QIcon programIcon();

}  // namespace orvek
