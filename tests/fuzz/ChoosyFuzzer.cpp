// SPDX-License-Identifier: Apache-2.0
// Ends its program as a fuzzer's function does where something does not hold: for the seed "bad".

#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  if (std::string_view(reinterpret_cast<const char *>(data), size) == "bad") std::abort();
  return 0;
}
