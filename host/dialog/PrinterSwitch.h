// SPDX-License-Identifier: Apache-2.0
// The way to another printer: asks for what a session on it begins with, without keeping the window
// waiting, and begins it. Knows no window.
#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <memory>

#include "host/dialog/DialogSetup.h"
#include "host/printers/BackgroundTask.h"

namespace orvek {

/// One question at a time: a new one, or stop(), drops the one before. Owns the thread that a
/// question runs on, which ends before it does; belongs to the interface's thread. What fails is
/// handed on.
class PrinterSwitch final : public QObject {
  Q_OBJECT

 public:
  using Session = Result<std::unique_ptr<PrintSession>>;

  /// Told of each question that was answered: the session begun, or why there is none, and the
  /// destination that it is for.
  using Arrived = std::function<void(Session session, const QString &destination)>;

  PrinterSwitch(DialogSetup::BeginSession begin, Arrived arrived);

  /// Asks for `what`, a destination or a file; `destination` is where its jobs will go.
  void ask(const DialogSetup::AskPrinter &asked, const QString &what, const QString &destination);

  /// Drops the question, whose answer nobody hears of.
  void stop();

  bool isAsking() const { return !m_what.isNull(); }
  bool isAskingFor(const QString &what) const { return isAsking() && what == m_what; }

 private:
  void take(const Result<SessionSetup> &setup, const QString &destination);

  DialogSetup::BeginSession m_begin;
  Arrived m_arrived;
  /// Null: nothing is being asked for.
  QString m_what;
  /// The last: it ends before what it reports to.
  BackgroundTask m_task;
};

}  // namespace orvek
