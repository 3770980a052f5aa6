// SPDX-License-Identifier: Apache-2.0
// The program's own beginning, once it is loaded.
#pragma once

#include "platform/system/SocketProgram.h"

/// Runs orvek-print with main()'s arguments and gives its exit status. `helper` is the helper for
/// print servers where one was started already; it is the program's from now on. The name is what
/// the loader looks for.
extern "C" int orvekPrint(int argc, char **argv, orvek::SocketProgram helper);
