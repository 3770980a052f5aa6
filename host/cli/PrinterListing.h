// SPDX-License-Identifier: Apache-2.0
// --list-printers.
#pragma once

#include "host/cli/CommandLine.h"
#include "host/printers/ServerAccess.h"

namespace orvek {

/// The print server and user that the command line names.
ServerAccess serverAccess(const CommandLine &line,
                          const std::shared_ptr<PasswordSource> &passwords);

/// Prints one line for each destination, its fields separated by tabs: what -d takes, its state in
/// words, its location, and "default" for that one.
Status listPrintersAsAsked(const CommandLine &line);

}  // namespace orvek
