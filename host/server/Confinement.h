// SPDX-License-Identifier: Apache-2.0
// What keeps the helper within its bounds, whatever a print server does to it.
#pragma once

namespace orvek {

/// Little memory, and no image of it on the disk. To be called before anything else.
void stayWithinBounds();

/// Ends the process once the other end of `socket` is closed, which takes no more than the end of
/// the program that has it.
void endWithProgram(int socket);

/// The same, also where the thread that started this process ends. Before that it can't be asked
/// for: who leaves a question to this process may end sooner.
void endWithThread();

/// Ends the process after some seconds.
void endSoon();

}  // namespace orvek
