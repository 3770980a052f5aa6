// SPDX-License-Identifier: Apache-2.0
// What a preview says against what came out.
#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <vector>

#include "tests/driver/Picture.h"

namespace orvek::test {

/// What a printer was given: what it draws, and what it was told about sheets and copies.
struct PaperSides {
  /// As often as each is printed.
  std::vector<SeenSide> sides;
  bool isTwoSided = false;
  /// How often the printer repeats each side by itself.
  int repeats = 1;
  /// How many documents the job has: each begins a sheet.
  int documents = 1;
};

/// Looks at a file that was printed into. No sides where there is none.
PaperSides paperIn(const QString &printed);

/// The side after so many degrees clockwise, a multiple of 90 from 0 on.
SeenSide turned(SeenSide side, int degrees);

/// One sentence for each thing that differs; none where `preview`, as the program inspects it, says
/// what came out: numbers and turns exactly, lengths within 2 points.
QStringList differences(const QJsonObject &preview, const PaperSides &paper);

}  // namespace orvek::test
