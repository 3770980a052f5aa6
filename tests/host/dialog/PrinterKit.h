// SPDX-License-Identifier: Apache-2.0
// A window that chooses among the queues of a private print server.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <chrono>

#include "host/dialog/PrinterChooser.h"
#include "host/session/QueueSetup.h"
#include "tests/host/dialog/DialogKit.h"
#include "tests/support/HostileServer.h"
#include "tests/support/PrivateCups.h"

namespace orvek::test {

inline const QString printers = QStringLiteral(ORVEK_SOURCE_DIR "/printers/");

class QueuesTest : public DialogTest {
 protected:
  void SetUp() override {
    if (const QString obstacle = PrivateCups::obstacle(); !obstacle.isEmpty()) {
      GTEST_SKIP() << obstacle.toStdString();
    }
    server = std::make_unique<PrivateCups>();
    server->addQueue(QStringLiteral("big"), printers + "Orvek-6180.ppd",
                     {QStringLiteral("-L"), QStringLiteral("Second floor")});
    server->addQueue(QStringLiteral("small"), printers + "Orvek-2120.ppd");
    prepare = [this](DialogSetup &setup) {
      setup.server.server = server->socket();
      setup.askPrinter = [this](const QString &queue, const std::atomic<bool> &cancelled) {
        return askServer(queue, cancelled);
      };
      setup.beginSession = [this](const SessionSetup &other) {
        begun << other.destination;
        return beginSession(other);
      };
      setup.readDescription = [](const QString &path, const std::atomic<bool> &) {
        return setupFor(path);
      };
      setup.presets = std::make_shared<PresetStore>(folder.filePath(QStringLiteral("presets")));
    };
  }

  // Runs on a thread of its own, as every question to a server does.
  Result<SessionSetup> askServer(const QString &queue, const std::atomic<bool> &cancelled) const {
    ServerAccess access;
    access.server = queue == silentQueue ? silentServer.hostAndPort() : server->socket();
    access.cancelled = &cancelled;
    access.patience = patience;
    SessionSetup setup;
    if (Status asked = setUpForQueue(access, queue, &setup); !asked) return asked.failure();
    return setup;
  }

  /// Opens the list of printers with the mouse.
  QAbstractItemView *openPrinters() const {
    QTest::mouseClick(find<QComboBox>("printerMenu"), Qt::LeftButton);
    // Told of it later, the toolkit would take the closed list for the active window.
    QCoreApplication::processEvents();
    return shownPrinters();
  }

  /// The list while it is open; else null.
  QAbstractItemView *shownPrinters() const {
    auto *list = find<QAbstractItemView>("printerList");
    return list != nullptr && list->isVisible() ? list : nullptr;
  }

  /// What the open list has, from above.
  QStringList listedPrinters() const {
    QStringList names;
    const QAbstractItemView *list = shownPrinters();
    for (int row = 0; list != nullptr && row < list->model()->rowCount(); ++row) {
      names << list->model()->index(row, 0).data().toString();
    }
    return names;
  }

  /// Opens the list with the mouse and clicks on this one.
  void clickPrinter(const QString &name) {
    QAbstractItemView *list = openPrinters();
    ASSERT_NE(list, nullptr);
    const auto row = static_cast<int>(listedPrinters().indexOf(name));
    ASSERT_GE(row, 0) << name.toStdString();
    const QModelIndex index = list->model()->index(row, 0);
    list->scrollTo(index);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
    ASSERT_EQ(shownPrinters(), nullptr);
    QCoreApplication::processEvents();
  }

  // A question to a server takes as long as the server does.
  void pickPrinter(const QString &name) {
    clickPrinter(name);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !isAsking(); }, jobTimeout));
  }

  bool canPrint() const { return find<QPushButton>("printButton")->isEnabled(); }
  QString shownPrinter() const { return find<QComboBox>("printerMenu")->currentText(); }

  bool isAsking() const { return detail().startsWith(QStringLiteral("Asking")); }

  void list() {
    auto *chooser = dialog->findChild<PrinterChooser *>();
    QSignalSpy listed(chooser, &PrinterChooser::listed);
    chooser->refresh();
    ASSERT_TRUE(listed.count() > 0 || listed.wait(jobTimeout));
  }

  QString detail() const { return find<QLabel>("printerDetail")->accessibleName(); }

  std::unique_ptr<PrivateCups> server;
  const HostileServer silentServer{Hostility::Silence};
  /// The one that it is asked for.
  QString silentQueue;
  /// The destinations of the sessions that the window asked for.
  QStringList begun;
  std::chrono::milliseconds patience = serverPatience();
};

}  // namespace orvek::test
