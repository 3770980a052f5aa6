// SPDX-License-Identifier: Apache-2.0
// A shell script in the place of a tool that the program runs.
#pragma once

#include <gtest/gtest.h>

#include <QByteArrayList>
#include <QFile>
#include <QTemporaryDir>

namespace orvek::test {

/// While it lives these lines of a shell are run where a tool of this name is asked for. They run
/// in a folder of its own.
class OwnTool {
 public:
  OwnTool(const QString &name, const QByteArray &lines) : m_path(qgetenv("PATH")) {
    QFile program(m_folder.filePath(name));
    EXPECT_TRUE(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\ncd '" + m_folder.path().toUtf8() + "'\n" + lines);
    program.close();
    program.setPermissions(QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
    qputenv("PATH", m_folder.path().toUtf8() + ':' + m_path);
  }
  OwnTool(const OwnTool &) = delete;
  OwnTool &operator=(const OwnTool &) = delete;
  ~OwnTool() { qputenv("PATH", m_path); }

  /// The lines written to this file since it was asked last, but for empty ones.
  QByteArrayList takeLines(const QString &name) {
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::ReadOnly)) return {};
    QByteArrayList lines = file.readAll().split('\n');
    lines.removeAll(QByteArray());
    file.remove();
    return lines;
  }

 private:
  QTemporaryDir m_folder;
  QByteArray m_path;
};

}  // namespace orvek::test
