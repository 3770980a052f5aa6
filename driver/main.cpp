// SPDX-License-Identifier: Apache-2.0
// The CUPS filter that prints booklets.

#include <cstddef>

#include "driver/Driver.h"
#include "platform/system/FileSizeLimit.h"
#include "platform/system/StandardDescriptors.h"

int main(int argc, char *argv[]) {
  orvek::openStandardDescriptors();
  orvek::outliveFileSizeLimits();
  return orvek::driver::runDriver({argv, static_cast<std::size_t>(argc)});
}
