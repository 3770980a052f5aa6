// SPDX-License-Identifier: Apache-2.0
// The general log: formats the standard-error line, hands the text to syslog(3) and to a listener.

#include "platform/system/Log.h"

#include <syslog.h>
#include <unistd.h>

#include <QByteArray>
#include <QDateTime>
#include <cerrno>
#include <cstdio>

namespace orvek {
namespace {

std::function<void(const QString &)> &listener() {
  static std::function<void(const QString &)> current;
  return current;
}

void writeToStandardError(const QByteArray &text) {
  const QByteArray time =
      QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")).toUtf8();
  // One write per line keeps lines of several processes whole on a shared terminal.
  const QByteArray whole = time + ' ' + program_invocation_short_name + '[' +
                           QByteArray::number(getpid()) + "] " + text +
                           (text.endsWith('\n') ? "" : "\n");
  std::fwrite(whole.constData(), 1, static_cast<std::size_t>(whole.size()), stderr);
}

}  // namespace

void logLine(const QString &line) {
  // A copy: the listener may end itself.
  const auto listening = listener();
  if (listening) listening(line);
  const QByteArray text = line.toUtf8();
  syslog(LOG_USER | LOG_NOTICE, "%s", text.constData());
  writeToStandardError(text);
}

void setLogListener(std::function<void(const QString &line)> newListener) {
  listener() = std::move(newListener);
}

}  // namespace orvek
