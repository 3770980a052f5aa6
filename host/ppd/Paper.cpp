// SPDX-License-Identifier: Apache-2.0
// Reads and writes paper sizes.

#include "host/ppd/Paper.h"

#include <QLocale>
#include <QRegularExpression>
#include <array>

namespace orvek {
namespace {

constexpr double pointsPerInch = 72;
constexpr double pointsPerMillimetre = pointsPerInch / 25.4;

struct CupsUnit {
  const char *name;
  double points;
};
constexpr std::array<CupsUnit, 7> cupsUnits{{{"", 1},
                                             {"pt", 1},
                                             {"in", pointsPerInch},
                                             {"mm", pointsPerMillimetre},
                                             {"cm", 10 * pointsPerMillimetre},
                                             {"m", 1000 * pointsPerMillimetre},
                                             {"ft", 12 * pointsPerInch}}};

QString number(double value, int decimals) {
  return QString::number(value, 'f', decimals);
}

}  // namespace

QSizeF paperSize(ppd_file_t *ppd, const QString &choice) {
  if (const std::optional<QSizeF> custom = customPaperSize(choice)) return *custom;
  if (ppd == nullptr || choice.isEmpty()) return {};
  const ppd_size_t *size = ppdPageSize(ppd, choice.toUtf8().constData());
  return size == nullptr ? QSizeF() : QSizeF(size->width, size->length);
}

std::optional<CustomPaperLimits> customPaperLimits(ppd_file_t *ppd) {
  if (ppd == nullptr || ppd->variable_sizes == 0) return std::nullopt;
  return CustomPaperLimits{{ppd->custom_min[0], ppd->custom_min[1]},
                           {ppd->custom_max[0], ppd->custom_max[1]}};
}

PaperUnit PaperUnit::ofLocale() {
  if (QLocale().measurementSystem() == QLocale::ImperialUSSystem) return {"in", pointsPerInch, 2};
  return {"mm", pointsPerMillimetre, 1};
}

QString customPaperChoice(QSizeF size, const PaperUnit &unit) {
  return QStringLiteral("Custom.%1x%2%3")
      .arg(number(size.width() / unit.points, unit.decimals),
           number(size.height() / unit.points, unit.decimals), QString::fromLatin1(unit.cupsName));
}

std::optional<QSizeF> customPaperSize(const QString &choice) {
  static const QRegularExpression pattern(
      QStringLiteral("\\ACustom\\.([0-9.]+)x([0-9.]+)([a-z]*)\\z"),
      QRegularExpression::CaseInsensitiveOption);
  const QRegularExpressionMatch match = pattern.match(choice);
  if (!match.hasMatch()) return std::nullopt;
  const QSizeF size(match.captured(1).toDouble(), match.captured(2).toDouble());
  for (const CupsUnit &unit : cupsUnits) {
    if (match.captured(3).compare(QLatin1String(unit.name), Qt::CaseInsensitive) != 0) continue;
    return size.isEmpty() ? std::nullopt : std::optional(size * unit.points);
  }
  return std::nullopt;
}

bool isCustomPaper(const QString &choice) {
  return choice.compare(QLatin1String("Custom"), Qt::CaseInsensitive) == 0 ||
         choice.startsWith(QLatin1String("Custom."), Qt::CaseInsensitive);
}

}  // namespace orvek
