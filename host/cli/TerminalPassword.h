// SPDX-License-Identifier: Apache-2.0
// Asks for a password on the terminal, as lp does. The standard streams are left alone: they may be
// a document and its result.
#pragma once

#include "host/printers/Passwords.h"

namespace orvek {

/// Asks with "Password for USER on SERVER?" on the terminal that controls the program, and reads a
/// line without showing it. Fails where there is no such terminal, where the program runs in its
/// background, and for an empty line, Ctrl-C or Ctrl-D.
Result<Credentials> askOnTerminal(const PasswordQuestion &question,
                                  const std::atomic<bool> *cancelled);

}  // namespace orvek
