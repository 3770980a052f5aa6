// SPDX-License-Identifier: Apache-2.0
// What the tests of a session share: a session whose panel writes down every call.
#pragma once

#include <QStringList>
#include <functional>
#include <memory>

#include "host/session/PrintSession.h"
#include "tests/host/panels/RecordingPlugin.h"
#include "tests/host/ppd/TestPrinters.h"

namespace orvek::test {

/// A session on a test printer with a recording plug-in, its panels open.
struct RecordedSession {
  explicit RecordedSession(SessionSetup setup = {}) {
    if (!setup.printer) setup.printer = openTestPpd(QStringLiteral("finisher.ppd"));
    session = PrintSession::begin(setup).take();
    auto loaded = std::make_shared<LoadedPlugin>();
    auto factory = std::make_unique<RecordingPlugin>();
    plugin = factory.get();
    loaded->factory = std::move(factory);
    session->openPanels({loaded});
  }

  /// Does it as one action.
  void act(const std::function<void()> &what) const {
    const ActionScope action(*session);
    what();
  }

  std::shared_ptr<RecordingPanel> panel() const { return plugin->last.lock(); }
  QString marked(const QString &option) const { return session->marks().marked(option); }
  QStringList calls() const { return *plugin->calls; }
  QVariant inTicket(const QString &key) const { return session->ticket().value(key); }

  std::unique_ptr<PrintSession> session;
  RecordingPlugin *plugin = nullptr;
};

}  // namespace orvek::test
