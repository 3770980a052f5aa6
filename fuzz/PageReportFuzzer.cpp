// SPDX-License-Identifier: Apache-2.0
// What a tool says about a document's pages, and the sheets that come of it. The last byte chooses
// the job.

#include "fuzz/Laid.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  if (size == 0) return 0;
  // A copy of its very size, so that one byte too far is seen.
  const QByteArray report(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
  orvek::fuzz::layOut(orvek::pagesInReport(report), data[size - 1]);
  return 0;
}
