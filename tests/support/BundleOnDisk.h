// SPDX-License-Identifier: Apache-2.0
// A plug-in bundle that a test writes file by file into a folder of its own.
#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace orvek::test {

/// The folder vanishes with the object.
class BundleOnDisk {
 public:
  QString path() const { return m_folder.path(); }
  QString file(const QString &name) const { return m_folder.filePath(name); }

  /// Writes the file, with the folders it lies in.
  void write(const QString &name, const QByteArray &content) const {
    QDir().mkpath(QFileInfo(file(name)).path());
    QFile target(file(name));
    if (!target.open(QIODevice::WriteOnly) || target.write(content) != content.size()) {
      qFatal("can't write %s", qPrintable(target.fileName()));
    }
  }

 private:
  QTemporaryDir m_folder;
};

}  // namespace orvek::test
