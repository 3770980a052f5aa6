// SPDX-License-Identifier: Apache-2.0
// A real window on a real PPD with the real plug-in, worked by events alone.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>
#include <memory>

#include "host/dialog/NoticeBar.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/SummaryView.h"
#include "host/panels/PluginLoader.h"
#include "host/session/PrintSession.h"
#include "tests/support/Printers.h"

namespace orvek::test {

/// Milliseconds.
inline constexpr int jobTimeout = 30000;

/// A window over a session on one of the project's printers. Prints the sample into outputFile.
class DialogTest : public ::testing::Test {
 protected:
  void open(const QString &printer = QStringLiteral("Orvek-6180"), SessionSetup setup = {}) {
    auto begun = openSession(QStringLiteral(ORVEK_SOURCE_DIR "/printers/") + printer + ".ppd",
                             std::move(setup));
    ASSERT_TRUE(begun) << begun.failure().line().toStdString();
    session = begun.take();
    showWindow();
  }

  static Result<std::unique_ptr<PrintSession>> openSession(const QString &ppd,
                                                           SessionSetup setup = {}) {
    auto gathered = setupFor(ppd, std::move(setup));
    if (!gathered) return gathered.failure();
    return beginSession(gathered.value());
  }

  static Result<SessionSetup> setupFor(const QString &ppd, SessionSetup setup = {}) {
    auto description = PrinterDescription::open(ppd);
    if (!description) return description.failure();
    setup.printer = description.take();
    return setup;
  }

  static Result<std::unique_ptr<PrintSession>> beginSession(const SessionSetup &setup) {
    auto begun = PrintSession::begin(setup);
    if (!begun) return begun;
    auto plugin = loadPlugin(QStringLiteral(ORVEK_BUNDLE_DIR));
    if (!plugin) return plugin.failure();
    begun.value()->openPanels({std::make_shared<LoadedPlugin>(plugin.take())});
    return begun;
  }

  void showWindow() {
    DialogSetup dialogSetup;
    dialogSetup.files = files;
    dialogSetup.documentName = QStringLiteral("Finishing-Sample.pdf");
    dialogSetup.document.pages = 8;
    dialogSetup.outputFile = outputFile;
    dialogSetup.jobRequest = [this](PrintSession &now) { return requestFor(now); };
    if (prepare) prepare(dialogSetup);
    dialog = std::make_unique<PrintDialog>(*session, std::move(dialogSetup));
    if (screen != nullptr) dialog->setScreen(screen);
    dialog->show();
    dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
  }

  JobRequest requestFor(PrintSession &now) const {
    JobRequest request;
    request.files = files;
    request.options = now.job().options();
    if (now.origin().printer) request.ppdFile = now.origin().printer->path();
    return request;
  }

  template <typename Control>
  Control *find(const char *name) const {
    return dialog->findChild<Control *>(QLatin1String(name));
  }

  /// Opens the menu with the mouse and clicks on the item with this text.
  void clickItem(const char *popUp, const QString &text) {
    auto *menu = find<QComboBox>(popUp);
    ASSERT_NE(menu, nullptr) << popUp;
    const int row = menu->findText(text);
    ASSERT_GE(row, 0) << text.toStdString();
    QTest::mouseClick(menu, Qt::LeftButton);
    QAbstractItemView *list = menu->view();
    ASSERT_TRUE(QTest::qWaitFor([&] { return list->isVisible(); }));
    const QModelIndex index = menu->model()->index(row, 0);
    list->scrollTo(index);
    // A combo box takes a click for the one that opened it until a moment has passed.
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !list->isVisible(); }));
    QCoreApplication::processEvents();
  }

  /// A key, to whatever has the keyboard.
  static void press(Qt::Key key, Qt::KeyboardModifiers with = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, with);
    QCoreApplication::processEvents();
  }

  /// Presses Tab until the control of this name has the keyboard.
  static void tabTo(const char *name) {
    constexpr int mostStops = 60;
    for (int stops = 0; stops < mostStops; ++stops) {
      if (QApplication::focusWidget()->objectName() == QLatin1String(name)) return;
      press(Qt::Key_Tab);
    }
    FAIL() << name << " can't be reached";
  }

  void click(const char *button) {
    auto *found = find<QAbstractButton>(button);
    ASSERT_NE(found, nullptr) << button;
    QTest::mouseClick(found, Qt::LeftButton, {}, QPoint(found->height() / 2, found->height() / 2));
    QCoreApplication::processEvents();
  }

  NoticeBar &notices() const { return *dialog->findChild<NoticeBar *>(); }
  SummaryView &summary() const { return *dialog->findChild<SummaryView *>(); }

  /// The value of a line of the summary as it is shown; null where there is no such line.
  QString summaryValue(const QString &title) const {
    for (int row = 0; row < summary().topLevelItemCount(); ++row) {
      const QTreeWidgetItem *line = summary().topLevelItem(row);
      if (line->text(0) == title) return line->text(1);
    }
    return {};
  }

  QByteArray printed() const {
    QFile file(outputFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  /// Where the window is shown; null: where the toolkit shows it.
  QScreen *screen = nullptr;
  QTemporaryDir folder;
  /// What a test adds to the window's setup.
  std::function<void(DialogSetup &)> prepare;
  QStringList files{QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf")};
  QString outputFile = folder.filePath(QStringLiteral("out.ps"));
  std::unique_ptr<PrintSession> session;
  std::unique_ptr<PrintDialog> dialog;
};

}  // namespace orvek::test
