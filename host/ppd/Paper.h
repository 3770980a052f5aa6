// SPDX-License-Identifier: Apache-2.0
// Sizes of paper as PPD files and CUPS name them. Lengths are points.
#pragma once

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <optional>

#include "host/ppd/PrinterDescription.h"

namespace orvek {

/// The size that a choice of PageSize stands for ("A4", "Custom.200x300mm"). Empty where the PPD
/// does not know it.
QSizeF paperSize(const PrinterDescription &printer, const QString &choice);

/// The part of that paper that the printer can print on; y downwards from the upper left corner.
/// Empty where the PPD does not know it.
QRectF printableArea(const PrinterDescription &printer, const QString &choice);

/// Whether the printer piles the sheets of this tray (a choice of OutputBin; null: none) such that
/// the last page has to be printed first.
bool stacksReversed(const PrinterDescription &printer, const QString &tray);

/// The smallest and largest custom size. Plain data.
struct CustomPaperLimits {
  QSizeF least;
  QSizeF most;
};

/// Nothing where the printer takes no custom sizes.
std::optional<CustomPaperLimits> customPaperLimits(const PrinterDescription &printer);

/// The unit that people of a place measure paper in. Plain data.
struct PaperUnit {
  /// "mm" or "in", as CUPS writes it.
  const char *cupsName;
  /// One unit, in points.
  double points;
  /// How many decimals make sense to show.
  int decimals;

  static PaperUnit ofLocale();
};

/// "Custom.WIDTHxHEIGHT" with the unit, as CUPS reads it.
QString customPaperChoice(QSizeF size, const PaperUnit &unit);

/// The size of a "Custom.WIDTHxHEIGHT" choice; nothing for any other choice.
std::optional<QSizeF> customPaperSize(const QString &choice);

}  // namespace orvek
