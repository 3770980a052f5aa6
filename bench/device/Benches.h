// SPDX-License-Identifier: Apache-2.0
// The lines of the table, one function a file.
#pragma once

namespace bench {

void readers();
void checksum();
void largePages();
void fetch(const char *plainBase, const char *secureBase);
void echo(const char *program);

}  // namespace bench
