// SPDX-License-Identifier: Apache-2.0
// Documents, imposed. Whatever they hold, there are sheets or there is one line that says why not.

#include <cstdio>
#include <cstdlib>

#include "driver/Imposer.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  if (size == 0) return 0;
  std::FILE *document = fmemopen(const_cast<unsigned char *>(data), size, "rb");
  char *bytes = nullptr;
  std::size_t written = 0;
  std::FILE *sheets = open_memstream(&bytes, &written);
  // The last byte doubles as the choice of what the keys say.
  const unsigned char choice = data[size - 1];
  orvek::driver::BookletRequest request;
  request.keys.rightToLeft = (choice & 1U) != 0;
  request.keys.pageBorders = (choice & 2U) != 0;
  request.keys.creep = choice % 73 - 36;
  request.mayBeginWithFiller = (choice & 4U) != 0;
  if ((choice & 8U) != 0) request.paper = {595, 842};
  const auto sides = orvek::driver::imposeDocument(document, sheets, request);
  std::fclose(sheets);
  std::fclose(document);
  const int count = sides ? sides.value().sides : 0;
  const bool isGood = sides ? count > 0 && count % 2 == 0 && written > 0
                            : !sides.failure().line().contains(QLatin1Char('\n'));
  std::free(bytes);
  if (!isGood) std::abort();
  return 0;
}
