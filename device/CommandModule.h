// SPDX-License-Identifier: Apache-2.0
// The modules that hold the commands, found beside the program wherever the whole is moved to.
#pragma once

#include "device/Commands.h"

namespace orvek::device {

/// Loads the module of the command `name`, one that the program knows, and runs it with its words.
/// Gives its exit status; complains where the module is missing or damaged.
int runCommandModule(const char *name, int count, char **words, Output output);

}  // namespace orvek::device
