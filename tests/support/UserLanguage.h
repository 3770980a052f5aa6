// SPDX-License-Identifier: Apache-2.0
// The language of a user, as libraries without a toolkit learn of it.
#pragma once

#include <clocale>
#include <cstdlib>
#include <string>

namespace orvek::test {

/// Makes libcups read PPD files for a user of this language. It asks the C library first, and the
/// environment where that speaks no language at all.
class UserLanguage {
 public:
  explicit UserLanguage(const std::string &language) {
    std::setlocale(LC_ALL, "C");
    unsetenv("LC_ALL");
    unsetenv("LC_MESSAGES");
    setenv("LANG", (language + ".UTF-8").c_str(), 1);
  }
  ~UserLanguage() { setenv("LANG", "C.UTF-8", 1); }
  UserLanguage(const UserLanguage &) = delete;
  UserLanguage &operator=(const UserLanguage &) = delete;
};

}  // namespace orvek::test
