// SPDX-License-Identifier: Apache-2.0
// The general log: formats the standard-error line, hands the text to syslog(3) and to listeners.

#include "platform/system/Log.h"

#include <syslog.h>
#include <unistd.h>

#include <QByteArray>
#include <QDateTime>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "platform/system/OneLine.h"

namespace orvek {
namespace {

using Listeners = std::vector<std::weak_ptr<const LogListener>>;

// The list and what guards it: lines come from any thread.
struct Registry {
  std::mutex mutex;
  Listeners listeners;
};

Registry &registry() {
  static Registry all;
  return all;
}

// Listeners may come and go while others are called.
Listeners currentListeners() {
  const std::lock_guard<std::mutex> lock(registry().mutex);
  return registry().listeners;
}

void tellListeners(const QString &line) {
  for (const std::weak_ptr<const LogListener> &listener : currentListeners()) {
    const std::shared_ptr<const LogListener> listening = listener.lock();
    if (listening && *listening) (*listening)(line);
  }
}

// Texts of printers and servers are among what is logged: they neither begin a line of their own
// nor move a terminal's cursor.
void writeToStandardError(const QByteArray &text) {
  const QByteArray time =
      QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")).toUtf8();
  const std::string line = oneLine((text.endsWith('\n') ? text.chopped(1) : text).toStdString());
  // One write per line keeps lines of several processes whole on a shared terminal.
  const QByteArray whole = time + ' ' + program_invocation_short_name + '[' +
                           QByteArray::number(getpid()) + "] " + line.c_str() + '\n';
  std::fwrite(whole.constData(), 1, static_cast<std::size_t>(whole.size()), stderr);
}

}  // namespace

void logLine(const QString &line) {
  tellListeners(line);
  const QByteArray text = line.toUtf8();
  syslog(LOG_USER | LOG_NOTICE, "%s", text.constData());
  writeToStandardError(text);
}

LogSubscription::LogSubscription(LogListener listener)
    : m_listener(std::make_shared<const LogListener>(std::move(listener))) {
  const std::lock_guard<std::mutex> lock(registry().mutex);
  Listeners &listeners = registry().listeners;
  std::erase_if(listeners, [](const auto &ended) { return ended.expired(); });
  listeners.push_back(m_listener);
}

void setLogListener(std::function<void(const QString &line)> newListener) {
  static std::unique_ptr<LogSubscription> current;
  current.reset();
  if (newListener) current = std::make_unique<LogSubscription>(std::move(newListener));
}

}  // namespace orvek
