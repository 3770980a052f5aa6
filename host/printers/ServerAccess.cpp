// SPDX-License-Identifier: Apache-2.0
// How long to wait for a print server.

#include "host/printers/ServerAccess.h"

namespace orvek {

std::chrono::milliseconds serverPatience() {
  constexpr double usualSeconds = 10;
  constexpr double fewestSeconds = 0.1;
  constexpr double mostSeconds = 3600;
  constexpr double milliseconds = 1000;
  bool isNumber = false;
  const double wanted = qEnvironmentVariable("ORVEK_PRINT_PATIENCE").toDouble(&isNumber);
  const bool counts = isNumber && wanted >= fewestSeconds && wanted <= mostSeconds;
  return std::chrono::milliseconds(qint64((counts ? wanted : usualSeconds) * milliseconds));
}

}  // namespace orvek
