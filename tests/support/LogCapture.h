// SPDX-License-Identifier: Apache-2.0
// Collects what is written through the general log while the object lives.
#pragma once

#include <QStringList>

#include "platform/system/Log.h"

namespace orvek::test {

class LogCapture {
 public:
  LogCapture() {
    setLogListener([this](const QString &line) { m_lines << line; });
  }
  ~LogCapture() { setLogListener({}); }
  LogCapture(const LogCapture &) = delete;
  LogCapture &operator=(const LogCapture &) = delete;

  const QStringList &lines() const { return m_lines; }

 private:
  QStringList m_lines;
};

}  // namespace orvek::test
