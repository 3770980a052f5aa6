// SPDX-License-Identifier: Apache-2.0
// Renders the dialog off-screen and writes it.

#include "host/cli/Screenshot.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QImage>
#include <QPixmap>
#include <QTimer>

#include "host/cli/Window.h"
#include "host/dialog/PrintDialog.h"
#include "host/preview/JobPreview.h"
#include "platform/system/WholeFile.h"

namespace orvek {
namespace {

constexpr int pollMilliseconds = 20;
constexpr int pagesMilliseconds = 5000;

// What waits for the first paint, and the document's pages, which come by and by.
void waitForPages(const PrintDialog &dialog) {
  QElapsedTimer clock;
  clock.start();
  const auto *preview = dialog.findChild<JobPreview *>();
  do {
    QEventLoop loop;
    QTimer::singleShot(pollMilliseconds, &loop, &QEventLoop::quit);
    loop.exec();
  } while (preview != nullptr && !preview->isComplete() && clock.elapsed() < pagesMilliseconds);
  QCoreApplication::processEvents();
}

// Shown without a screen, so that sizes, styles and texts are those of the real window.
QImage renderDialog(const CommandLine &line, PrintSession &session, const QString &document) {
  DialogSetup setup = dialogSetupFor(line, session);
  setup.document = document.isEmpty() ? DocumentInfo() : documentInfo(document);
  PrintDialog dialog(session, std::move(setup));
  dialog.setAttribute(Qt::WA_DontShowOnScreen);
  dialog.show();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  dialog.grab();
  waitForPages(dialog);
  return dialog.grab().toImage();
}

}  // namespace

Status writeScreenshot(const CommandLine &line, PrintSession &session, const QString &document) {
  QByteArray png;
  QBuffer buffer(&png);
  if (!buffer.open(QIODevice::WriteOnly) ||
      !renderDialog(line, session, document).save(&buffer, "PNG")) {
    return Failure{FailureKind::Io, line.screenshot,
                   QStringLiteral("the picture can't be made into a PNG")};
  }
  return writeFile(line.screenshot, png);
}

}  // namespace orvek
