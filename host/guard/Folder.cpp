// SPDX-License-Identifier: Apache-2.0
// Makes and removes folders.

#include "host/guard/Folder.h"

#include <ftw.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace orvek::guard {
namespace {

constexpr const char *variable = "TMPDIR";

int removeEntry(const char *path, const struct stat *, int, FTW *) {
  // What stays does so alone.
  std::remove(path);
  return 0;
}

}  // namespace

void removeFolder(const char *path) {
  struct stat entry {};
  if (::lstat(path, &entry) != 0 || !S_ISDIR(entry.st_mode) || entry.st_uid != ::geteuid()) return;
  constexpr int openFolders = 16;
  ::nftw(path, removeEntry, openFolders, FTW_DEPTH | FTW_PHYS | FTW_MOUNT);
}

OwnFolder::OwnFolder() {
  const char *named = std::getenv(variable);
  const char *place = named == nullptr || *named == '\0' ? P_tmpdir : named;
  const int size = std::snprintf(m_path.data(), m_path.size(), "%s/orvek-run-XXXXXX", place);
  const bool fits = size > 0 && static_cast<std::size_t>(size) < m_path.size();
  if (fits && ::mkdtemp(m_path.data()) != nullptr) {
    ::setenv(variable, m_path.data(), 1);
  } else {
    m_path[0] = '\0';
  }
}

OwnFolder::~OwnFolder() {
  if (m_path[0] != '\0') removeFolder(m_path.data());
}

void keepFolder(const char *path) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) std::signal(signal, SIG_IGN);
  pollfd other{STDIN_FILENO, POLLIN, 0};
  constexpr int forEver = -1;
  while (::poll(&other, 1, forEver) <= 0) {
  }
  removeFolder(path);
}

}  // namespace orvek::guard
