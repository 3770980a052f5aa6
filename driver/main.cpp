// SPDX-License-Identifier: Apache-2.0
// The CUPS filter that prints booklets.

#include <cstddef>

#include "driver/Driver.h"

int main(int argc, char *argv[]) {
  return orvek::driver::runDriver({argv, static_cast<std::size_t>(argc)});
}
