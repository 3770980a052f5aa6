// SPDX-License-Identifier: Apache-2.0
// orvek-device xml: the value of an element.

#include <QFile>

#include "Common/Utilities.h"
#include "device/Commands.h"
#include "platform/xml/XMLDocument.h"

namespace orvek::device {
namespace {

bool openFile(const char *path, QFile *file) {
  if (qstrcmp(path, "-") == 0) return file->open(stdin, QIODevice::ReadOnly);
  file->setFileName(QString::fromLocal8Bit(path));
  return file->open(QIODevice::ReadOnly);
}

}  // namespace

}  // namespace orvek::device

int orvekDeviceCommand(int count, char **words, orvek::device::Output output) {
  using namespace orvek::device;
  if (count != 3) return misuse(words[0], "give a file and an element's name");
  QFile file;
  if (!openFile(words[1], &file)) {
    return complain(Negative, words[1], file.errorString().toUtf8().constData());
  }
  const auto document = orvek::parseXML(file.readAll(), QString::fromLocal8Bit(words[1]));
  if (!document) {
    return complain(NotWellFormed, nullptr, document.failure().line().toUtf8().constData());
  }
  const QString value = GetOVGValue(*document.value(), QString::fromUtf8(words[2]));
  if (value.isNull()) return complain(Negative, words[1], "there is no such element");
  return writeText(output, value.toStdString() + '\n');
}
