// SPDX-License-Identifier: Apache-2.0
// Which picture shows the finished sheet. The rules form a key; the bundle's tables name the files.

#include <QJsonObject>
#include <QLabel>

#include "panel/OrvekFinishing.h"
#include "platform/ui/Controls.h"

using namespace orvek;

namespace {

constexpr QLatin1String noPictureKey{"None"};
constexpr QLatin1String saddleKey{"Saddle"};
constexpr QLatin1String fallbackFile{"Stapling_None.png"};
constexpr int suffixLength = 4;  // ".png"

// One model has a series of pictures of its own.
QLatin1String tableName(const QString &modelNumber) {
  return modelNumber == QLatin1String("6180") ? QLatin1String("OVStaplingPICTsQuince")
                                              : QLatin1String("OVStaplingPICTs");
}

QString staplingKey(const PDEChoice *selection) {
  const QString keyword = ppdTitle(selection);
  if (keyword == QLatin1String("FrontFlip")) return QStringLiteral("Front, flipped");
  if (keyword == QLatin1String("RearFlip")) return QStringLiteral("Rear, flipped");
  if (keyword == QLatin1String("DualFlip")) return QStringLiteral("Dual, flipped");
  return keyword;
}

}  // namespace

// Folding wins over stapling where it changes the sheet.
QString OrvekFinishing::imageKey() const {
  const QString stapling = staplingKey(staplingSelection);
  if (foldingChoices == nullptr) return stapling;
  const QString folding = ppdTitle(foldingSelection);
  if (folding == saddleKey) return saddleKey;
  if (folding == QLatin1String("Fold")) return noPictureKey;
  return stapling;
}

// Null where the table has neither the key's picture nor one for "None".
QString OrvekFinishing::imageFileName() const {
  const std::optional<QJsonObject> info = infoDictionary(pluginBundle.get());
  const QLatin1String name = tableName(modelNumber);
  if (!info || !info->contains(name)) return fallbackFile;
  const QJsonObject table = info->value(name).toObject();
  const QString key = imageKey();
  return table.value(table.contains(key) ? key : QString(noPictureKey)).toString();
}

void OrvekFinishing::updateStaplingImage() {
  QString file = imageFileName();
  if (file.isNull() || staplingChoices == nullptr) return;
  file.chop(suffixLength);
  setImage(imageWindow, pathForResource(pluginBundle.get(), file, QStringLiteral("png")));
}
