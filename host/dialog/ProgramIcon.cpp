// SPDX-License-Identifier: Apache-2.0
// Desktops know icons below the prefixes that they look into; this program may lie elsewhere.

#include "host/dialog/ProgramIcon.h"

#include <QDir>
#include <QFile>

#include "platform/system/SocketProgram.h"

namespace orvek {

QIcon programIcon() {
  const QDir theme(QDir::cleanPath(
      QFile::decodeName(besideThisProgram("../" ORVEK_DATA_FOLDER "/icons/hicolor").c_str())));
  QIcon icon;
  for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
    const QString picture = theme.filePath(QStringLiteral("%1x%1/apps/orvek-print.png").arg(size));
    if (QFile::exists(picture)) icon.addFile(picture, QSize(size, size));
  }
  return icon.isNull() ? QIcon::fromTheme(QStringLiteral("orvek-print")) : icon;
}

}  // namespace orvek
