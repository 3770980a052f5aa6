// SPDX-License-Identifier: Apache-2.0
// Swaps descriptor 0 and puts it back.

#include "tests/support/StandardInput.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QFile>

namespace orvek::test {

StandardInput::StandardInput(const QByteArray &bytes) {
  EXPECT_TRUE(m_bytes.open());
  m_bytes.write(bytes);
  m_bytes.flush();
  m_bytes.seek(0);
  replaceBy(m_bytes.handle());
}

StandardInput::StandardInput(const QString &file) {
  const int descriptor = ::open(QFile::encodeName(file).constData(), O_RDONLY | O_CLOEXEC);
  replaceBy(descriptor);
  ::close(descriptor);
}

StandardInput::~StandardInput() {
  ::dup2(m_saved, STDIN_FILENO);
  ::close(m_saved);
}

void StandardInput::replaceBy(int descriptor) {
  m_saved = ::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 3);
  EXPECT_GE(::dup2(descriptor, STDIN_FILENO), 0);
}

}  // namespace orvek::test
