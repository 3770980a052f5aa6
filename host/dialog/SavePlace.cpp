// SPDX-License-Identifier: Apache-2.0
// The toolkit's file chooser, whose filter and suffix go together.

#include "host/dialog/SavePlace.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>
#include <QStandardPaths>
#include <QUrl>

#include "host/jobs/Document.h"
#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

const QString pdfSuffix = QStringLiteral("pdf");
const QString printerSuffix = QStringLiteral("ps");

struct Words {
  Q_DECLARE_TR_FUNCTIONS(orvek::SavePlace)
};

QDir folderFor(const QString &document) {
  const QFileInfo folder(QFileInfo(document).absolutePath());
  if (!document.isNull() && !comesOnce(document) && folder.isWritable()) {
    return QDir(folder.filePath());
  }
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QDir(QFileInfo(documents).isDir() ? documents : QDir::homePath());
}

QString nameFor(const QString &document) {
  const QString name = comesOnce(document) ? QString() : QFileInfo(document).completeBaseName();
  return name.isEmpty() ? Words::tr("Printed") : name;
}

}  // namespace

QString proposedPlace(const QStringList &documents) {
  const QString first = documents.value(0);
  const QDir folder = folderFor(first);
  const QString name = nameFor(first);
  QString place = folder.filePath(name + u'.' + pdfSuffix);
  for (int number = 2; QFileInfo::exists(place); ++number) {
    place = folder.filePath(QStringLiteral("%1-%2.%3").arg(name).arg(number).arg(pdfSuffix));
  }
  return place;
}

bool isPdfPlace(const QString &path) {
  return QFileInfo(path).suffix().compare(pdfSuffix, Qt::CaseInsensitive) == 0;
}

QString askForPlace(QWidget *window, const QString &proposed) {
  QFileDialog chooser(window, Words::tr("Print into a File"), QFileInfo(proposed).absolutePath());
  const QString pdf = Words::tr("PDF of the sheets (*.pdf)");
  const QString printers = Words::tr("As the printer takes it (*.ps *.prn)");
  chooser.setAcceptMode(QFileDialog::AcceptSave);
  chooser.setFileMode(QFileDialog::AnyFile);
  chooser.setNameFilters({pdf, printers});
  chooser.setDefaultSuffix(pdfSuffix);
  chooser.selectFile(QFileInfo(proposed).fileName());
  QObject::connect(&chooser, &QFileDialog::filterSelected, &chooser,
                   [&chooser, pdf](const QString &chosen) {
                     const QString suffix = chosen == pdf ? pdfSuffix : printerSuffix;
                     const QString name = chooser.selectedFiles().value(0);
                     chooser.setDefaultSuffix(suffix);
                     if (!name.isEmpty()) {
                       chooser.selectFile(QFileInfo(name).completeBaseName() + u'.' + suffix);
                     }
                   });
  return chooser.exec() == QDialog::Accepted ? chooser.selectedFiles().value(0) : QString();
}

void showPlace(QWidget *window, const QString &path) {
  const QFileInfo file(path);
  PlainMessageBox box(QMessageBox::Information, Words::tr("Print"),
                      Words::tr("Printed into %1.").arg(file.fileName()), QMessageBox::Close,
                      window);
  box.setObjectName(QStringLiteral("printedInto"));
  QPushButton *show = box.addButton(Words::tr("&Show in Folder"), QMessageBox::ActionRole);
  box.button(QMessageBox::Close)->setText(Words::tr("Close"));
  box.setDefaultButton(QMessageBox::Close);
  box.setEscapeButton(QMessageBox::Close);
  box.exec();
  if (box.clickedButton() == show) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(file.absolutePath()));
  }
}

}  // namespace orvek
