// SPDX-License-Identifier: Apache-2.0
// Which processes are left of those that a test has started, whoever was their parent.
#pragma once

#include <sys/prctl.h>
#include <unistd.h>

#include <QByteArrayList>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMap>
#include <QThread>

namespace orvek::test {

/// From its making on the test's process is the parent of everything that loses its own below it.
class Descendants {
 public:
  Descendants() { ::prctl(PR_SET_CHILD_SUBREAPER, 1); }

  /// The names of those that live.
  QByteArrayList names() const {
    const QMap<int, Process> all = processes();
    QByteArrayList names;
    for (auto process = all.cbegin(); process != all.cend(); ++process) {
      int ancestor = process->parent;
      while (ancestor > 1 && ancestor != ::getpid()) ancestor = all.value(ancestor).parent;
      if (ancestor > 1 && process->state != "Z") names << process->name;
    }
    return names;
  }

  /// Waits until one of this name lives.
  bool waitFor(const QByteArray &name, int milliseconds = 20000) const {
    return holdsWithin(milliseconds, [&] { return names().contains(name); });
  }

  /// Waits until none lives.
  bool waitForNone(int milliseconds) const {
    return holdsWithin(milliseconds, [&] { return names().isEmpty(); });
  }

  template <typename Condition>
  static bool holdsWithin(int milliseconds, const Condition &condition) {
    constexpr unsigned long pause = 10;
    QElapsedTimer clock;
    clock.start();
    while (!condition()) {
      if (clock.elapsed() > milliseconds) return false;
      QThread::msleep(pause);
    }
    return true;
  }

 private:
  struct Process {
    QByteArray name;
    QByteArray state;
    int parent = 0;
  };

  static QMap<int, Process> processes() {
    QMap<int, Process> all;
    for (const QString &entry : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
      QFile file(QStringLiteral("/proc/%1/stat").arg(entry));
      if (entry.toInt() <= 0 || !file.open(QIODevice::ReadOnly)) continue;
      // "PID (NAME) STATE PARENT ...": the name may hold anything.
      const QByteArray text = file.readAll();
      const qsizetype end = text.lastIndexOf(')');
      const QByteArrayList rest = text.mid(end + 2).split(' ');
      const qsizetype begin = text.indexOf('(') + 1;
      all.insert(entry.toInt(),
                 {text.mid(begin, end - begin), rest.value(0), rest.value(1).toInt()});
    }
    return all;
  }
};

}  // namespace orvek::test
