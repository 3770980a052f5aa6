// SPDX-License-Identifier: Apache-2.0
// Programs beside this one, started with a socket as their standard input and nothing else open.
// Needs the system alone: the toolkit may still have to be loaded.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace orvek {

/// A started program and this program's end of the socket. Plain data; whoever holds it waits for
/// the one and closes the other.
struct SocketProgram {
  /// -1: none was started.
  pid_t process = -1;
  /// Does not block, and is none of the standard streams.
  int socket = -1;
};

/// What is started. Plain data.
struct ProgramStart {
  std::string path;
  std::vector<std::string> arguments = {};
  /// In a session of its own: the keys of this program's terminal are not for it.
  bool isApart = false;
};

/// Starts the program. Its standard output and error lead nowhere, its signals are as at the
/// beginning. Gives 0, or else an errno value.
int startWithSocket(const ProgramStart &start, SocketProgram *started);
inline int startWithSocket(const std::string &path, SocketProgram *started) {
  return startWithSocket(ProgramStart{path}, started);
}

/// A path that is relative to the folder of the running program.
std::string besideThisProgram(const std::string &path);

/// Where the helper program of this name stands: the same way from the running program's folder in
/// the build tree and where both are installed.
std::string helperProgram(const std::string &name);

}  // namespace orvek
