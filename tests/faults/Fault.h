// SPDX-License-Identifier: Apache-2.0
// One call that fails, and how it is brought about: FailingCall.cpp is loaded into the programs of
// a session and reads the plan in their environment.
#pragma once

#include <QFile>
#include <QString>
#include <QStringList>
#include <array>
#include <cerrno>

namespace orvek::test {

/// A function of the C library with those that stand for the same, and the error that it fails
/// with. Plain data.
struct FailingFunction {
  const char *family;
  int error;
};

/// Of two errors the first ends what was to be done, the second asks for nothing but another try.
inline constexpr std::array<FailingFunction, 17> failingFunctions{{{"open", EMFILE},
                                                                   {"read", EIO},
                                                                   {"write", ENOSPC},
                                                                   {"rename", EIO},
                                                                   {"link", EIO},
                                                                   {"fsync", EIO},
                                                                   {"close", EIO},
                                                                   {"mmap", ENOMEM},
                                                                   {"socket", EMFILE},
                                                                   {"connect", ECONNREFUSED},
                                                                   {"send", ECONNRESET},
                                                                   {"recv", ECONNRESET},
                                                                   {"fork", EAGAIN},
                                                                   {"read", EINTR},
                                                                   {"write", EINTR},
                                                                   {"send", EINTR},
                                                                   {"recv", EINTR}}};

/// The count of a function's calls in all programs of a run.
class CallCount {
 public:
  explicit CallCount(QString path) : m_path(std::move(path)) {}

  /// From 0 on; the environment has the call of this number fail (0: none).
  QStringList begin(const FailingFunction &function, int number) const {
    QFile file(m_path);
    if (file.open(QIODevice::WriteOnly)) file.write(QByteArray(sizeof(int), '\0'));
    return {QStringLiteral("LD_PRELOAD=" ORVEK_FAILING_CALL),
            QStringLiteral("ORVEK_FAULT_CALL=") + QLatin1String(function.family),
            QStringLiteral("ORVEK_FAULT_NUMBER=") + QString::number(number),
            QStringLiteral("ORVEK_FAULT_ERROR=") + QString::number(function.error),
            QStringLiteral("ORVEK_FAULT_COUNT=") + m_path};
  }

  int calls() const {
    QFile file(m_path);
    int count = 0;
    if (file.open(QIODevice::ReadOnly)) file.read(reinterpret_cast<char *>(&count), sizeof count);
    return count;
  }

 private:
  QString m_path;
};

}  // namespace orvek::test
