// SPDX-License-Identifier: Apache-2.0
// Asks in the background, begins on the interface's thread.

#include "host/dialog/PrinterSwitch.h"

#include <utility>

namespace orvek {

PrinterSwitch::PrinterSwitch(DialogSetup::BeginSession begin, Arrived arrived)
    : m_begin(std::move(begin)), m_arrived(std::move(arrived)) {}

void PrinterSwitch::ask(const DialogSetup::AskPrinter &asked, const QString &what,
                        const QString &destination) {
  m_what = what;
  m_task.start(
      this,
      [asked, what](const BackgroundTask::Cancelled &cancelled) { return asked(what, cancelled); },
      [this, destination](const Result<SessionSetup> &setup) { take(setup, destination); });
}

void PrinterSwitch::stop() {
  m_task.cancel();
  m_what = QString();
}

void PrinterSwitch::take(const Result<SessionSetup> &setup, const QString &destination) {
  stop();
  m_arrived(setup ? m_begin(setup.value()) : Session(setup.failure()), destination);
}

}  // namespace orvek
