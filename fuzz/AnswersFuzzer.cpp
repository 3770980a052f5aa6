// SPDX-License-Identifier: Apache-2.0
// Whole replies as the command line shows them: every line is one line.

#include <cstdlib>

#include "device/Answers.h"
#include "fuzz/Quiet.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  keepQuiet();
  if (size > 65535) return 0;
  for (const std::string &line : orvek::device::describeAnswers({data, size})) {
    if (line.find('\n') != std::string::npos) std::abort();
  }
  return 0;
}
