// SPDX-License-Identifier: Apache-2.0
// Sizes of paper as PPD files and CUPS name them. Lengths are points.
#pragma once

#include <QSizeF>
#include <QString>
#include <optional>

#include "platform/printing/PPD.h"

namespace orvek {

/// The size that a choice of PageSize stands for ("A4", "Custom.200x300mm"). Empty where the PPD
/// does not know it.
QSizeF paperSize(ppd_file_t *ppd, const QString &choice);

/// The smallest and largest custom size; nothing where the PPD has none.
struct CustomPaperLimits {
  QSizeF least;
  QSizeF most;
};
std::optional<CustomPaperLimits> customPaperLimits(ppd_file_t *ppd);

/// The unit that people of a place measure paper in.
struct PaperUnit {
  const char *cupsName;  ///< "mm" or "in"
  double points;         ///< one unit, in points
  int decimals;          ///< that make sense to show

  static PaperUnit ofLocale();
};

/// "Custom.WIDTHxHEIGHT" with the unit, as CUPS reads it.
QString customPaperChoice(QSizeF size, const PaperUnit &unit);

/// The size of a "Custom.WIDTHxHEIGHT" choice; nothing for any other choice.
std::optional<QSizeF> customPaperSize(const QString &choice);

/// True for a custom choice, with or without a size.
bool isCustomPaper(const QString &choice);

}  // namespace orvek
