// SPDX-License-Identifier: Apache-2.0
// Modules by dlopen(3). They stay loaded: libraries that they brought may not bear being unloaded.

#include "device/CommandModule.h"

#include <dlfcn.h>
#include <unistd.h>

#include <climits>
#include <cstdio>
#include <cstring>

namespace orvek::device {
namespace {

using Path = char[PATH_MAX];

/// The module's file. Not through the run path, which packages may not have.
bool locate(const char *name, Path *path) {
  Path program;
  const ssize_t length = readlink("/proc/self/exe", program, sizeof program - 1);
  if (length < 0) return false;
  program[length] = '\0';
  char *slash = std::strrchr(program, '/');
  if (slash == nullptr) return false;
  *slash = '\0';
  const int written =
      std::snprintf(*path, sizeof *path, "%s/" ORVEK_COMMAND_MODULES "/%s.so", program, name);
  return written > 0 && static_cast<std::size_t>(written) < sizeof *path;
}

}  // namespace

int runCommandModule(const char *name, int count, char **words, Output output) {
  Path path;
  if (!locate(name, &path)) return complain(Negative, name, "where this program is can't be told");
  void *module = dlopen(path, RTLD_LAZY | RTLD_LOCAL);
  if (module == nullptr) return complain(Negative, name, dlerror());
  void *found = dlsym(module, "orvekDeviceCommand");
  if (found == nullptr) return complain(Negative, name, dlerror());
  return reinterpret_cast<decltype(&orvekDeviceCommand)>(found)(count, words, output);
}

}  // namespace orvek::device
