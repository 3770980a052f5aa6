// SPDX-License-Identifier: Apache-2.0
// Renders the dialog off-screen and writes it.

#include "host/cli/Screenshot.h"

#include <QImage>
#include <QPixmap>
#include <QSaveFile>

namespace orvek {
namespace {

Failure notWritten(const QString &path, const QString &why) {
  return {FailureKind::Io, path, why};
}

QImage renderDialog(const PrintSession &session) {
  if (session.panels().empty()) return {};
  return session.panels().front()->container()->grab().toImage();
}

}  // namespace

Status writeScreenshot(const PrintSession &session, const QString &path) {
  const QImage picture = renderDialog(session);
  if (picture.isNull())
    return notWritten(path, QStringLiteral("there is no panel to take a picture of"));
  QSaveFile file(path);
  if (file.open(QIODevice::WriteOnly) && picture.save(&file, "PNG") && file.commit()) return {};
  return notWritten(path, file.errorString());
}

}  // namespace orvek
