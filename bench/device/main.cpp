// SPDX-License-Identifier: Apache-2.0
// The table of the device utilities. run.sh starts it with everything it needs around it.

#include "bench/Measure.h"
#include "bench/device/Benches.h"

int main(int count, char **words) {
  if (count != 4) {
    std::fprintf(stderr, "usage: %s ORVEK-DEVICE PLAIN-BASE-URL SECURE-BASE-URL\n", words[0]);
    return 2;
  }
  bench::head();
  bench::readers();
  bench::checksum();
  bench::largePages();
  bench::fetch(words[2], words[3]);
  bench::echo(words[1]);
  return 0;
}
