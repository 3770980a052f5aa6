// SPDX-License-Identifier: Apache-2.0
// The table of the device utilities. run.sh starts it with everything it needs around it.

#include "bench/device/Measure.h"

int main(int count, char **words) {
  if (count != 4) {
    std::fprintf(stderr, "usage: %s ORVEK-DEVICE PLAIN-BASE-URL SECURE-BASE-URL\n", words[0]);
    return 2;
  }
  std::printf("%-26s %-22s %10s %10s %-2s %6s  goal\n", "work", "against", "ours", "theirs", "",
              "ratio");
  bench::readers();
  bench::checksum();
  bench::fetch(words[2], words[3]);
  bench::echo(words[1]);
  return 0;
}
