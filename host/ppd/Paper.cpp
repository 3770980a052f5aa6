// SPDX-License-Identifier: Apache-2.0
// Reads and writes paper sizes.

#include "host/ppd/Paper.h"

#include <QLocale>
#include <QRegularExpression>
#include <string>

#include "host/ppd/CustomChoice.h"
#include "host/ppd/Keyword.h"
#include "host/ppd/LengthUnit.h"
#include "platform/printing/PPD.h"
#include "platform/printing/TrayOrder.h"

namespace orvek {
namespace {

QString number(double value, int decimals) {
  return QString::number(value, 'f', decimals);
}

}  // namespace

QSizeF paperSize(const PrinterDescription &printer, const QString &choice) {
  if (const std::optional<QSizeF> custom = customPaperSize(choice)) return *custom;
  if (printer.lend() == nullptr || choice.isEmpty()) return {};
  const ppd_size_t *size = ppdPageSize(printer.lend(), choice.toUtf8().constData());
  return size == nullptr ? QSizeF() : QSizeF(size->width, size->length);
}

QRectF printableArea(const PrinterDescription &printer, const QString &choice) {
  if (printer.lend() == nullptr || choice.isEmpty()) return {};
  const ppd_size_t *size = ppdPageSize(printer.lend(), choice.toUtf8().constData());
  if (size == nullptr) return {};
  return {size->left, size->length - size->top, size->right - size->left, size->top - size->bottom};
}

bool stacksReversed(const PrinterDescription &printer, const QString &tray) {
  if (printer.lend() == nullptr) return false;
  const std::string order = trayOrder(printer.lend(), tray.toUtf8().constData());
  return sameKeyword(QString::fromStdString(order), "Reverse");
}

std::optional<CustomPaperLimits> customPaperLimits(const PrinterDescription &printer) {
  const ppd_file_t *ppd = printer.lend();
  if (ppd == nullptr || ppd->variable_sizes == 0) return std::nullopt;
  return CustomPaperLimits{{ppd->custom_min[0], ppd->custom_min[1]},
                           {ppd->custom_max[0], ppd->custom_max[1]}};
}

PaperUnit PaperUnit::ofLocale() {
  if (QLocale().measurementSystem() == QLocale::ImperialUSSystem) return {"in", pointsPerInch, 2};
  return {"mm", pointsPerMillimetre, 1};
}

QString customPaperChoice(QSizeF size, const PaperUnit &unit) {
  const QString width = number(size.width() / unit.points, unit.decimals);
  const QString height = number(size.height() / unit.points, unit.decimals);
  return CustomChoice::ofValue(width + u'x' + height + QLatin1String(unit.cupsName)).text();
}

std::optional<QSizeF> customPaperSize(const QString &choice) {
  static const QRegularExpression pattern(QStringLiteral("\\A([0-9.]+)x([0-9.]+)([a-z]*)\\z"),
                                          QRegularExpression::CaseInsensitiveOption);
  const std::optional<CustomChoice> custom = CustomChoice::read(choice);
  if (!custom) return std::nullopt;
  const QRegularExpressionMatch match = pattern.match(custom->value());
  if (!match.hasMatch()) return std::nullopt;
  const QSizeF size(match.captured(1).toDouble(), match.captured(2).toDouble());
  const std::optional<double> unit = pointsPerUnit(match.captured(3));
  return unit && !size.isEmpty() ? std::optional(size * *unit) : std::nullopt;
}

}  // namespace orvek
