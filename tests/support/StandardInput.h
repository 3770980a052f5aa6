// SPDX-License-Identifier: Apache-2.0
// Lends a test's own bytes to the process as standard input.
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryFile>

namespace orvek::test {

/// While it lives, standard input is these bytes, or a file.
class StandardInput {
 public:
  explicit StandardInput(const QByteArray &bytes);
  explicit StandardInput(const QString &file);
  ~StandardInput();
  StandardInput(const StandardInput &) = delete;
  StandardInput &operator=(const StandardInput &) = delete;

 private:
  void replaceBy(int descriptor);

  QTemporaryFile m_bytes;
  int m_saved = -1;
};

}  // namespace orvek::test
