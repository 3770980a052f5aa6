// SPDX-License-Identifier: Apache-2.0
// The units that CUPS reads after a length, in points.
#pragma once

#include <array>
#include <optional>

#include "host/ppd/Keyword.h"

namespace orvek {

inline constexpr double pointsPerInch = 72;
inline constexpr double pointsPerMillimetre = pointsPerInch / 25.4;

/// Plain data. The name as CUPS writes it; a length without a name is in points.
struct LengthUnit {
  const char *name;
  double points;
};

inline constexpr std::array<LengthUnit, 7> lengthUnits{{{"", 1},
                                                        {"pt", 1},
                                                        {"in", pointsPerInch},
                                                        {"ft", 12 * pointsPerInch},
                                                        {"mm", pointsPerMillimetre},
                                                        {"cm", 10 * pointsPerMillimetre},
                                                        {"m", 1000 * pointsPerMillimetre}}};

/// One unit of this name, in points; nothing where CUPS knows no such unit.
inline std::optional<double> pointsPerUnit(QAnyStringView name) {
  for (const LengthUnit &unit : lengthUnits) {
    if (sameKeyword(name, unit.name)) return unit.points;
  }
  return std::nullopt;
}

}  // namespace orvek
