// SPDX-License-Identifier: Apache-2.0
// What the guard is called with, and what it answers. Without Qt, which the guard does without.
#pragma once

namespace orvek::guard {

/// "run GRACE MEMORY NICENESS PROGRAM [ARGUMENT]...": runs the tool PROGRAM, a path, and ends with
/// the tool's own status once nothing that the tool started is left. GRACE: milliseconds between
/// SIGTERM and SIGKILL where all of it is ended early; MEMORY: bytes of address space, 0: no limit;
/// NICENESS: what is added to the tool's. The caller's end of standard input is its life line.
inline constexpr const char *runWord = "run";

/// "keep FOLDER": removes the folder and all in it once the other end of standard input is closed.
inline constexpr const char *keepWord = "keep";

/// The exit status of "run" where the tool could not be started.
inline constexpr int noTool = 127;

}  // namespace orvek::guard
