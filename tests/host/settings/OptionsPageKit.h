// SPDX-License-Identifier: Apache-2.0
// The page of all other options, in a window of its own, for tests that work on it.
#pragma once

#include <gtest/gtest.h>

#include <QTreeView>

#include "host/settings/ChoiceBox.h"
#include "host/settings/OptionsPage.h"
#include "tests/host/settings/SettingsKit.h"

namespace orvek::test {

class OptionsPageOnPpd : public testing::Test {
 protected:
  void open(const QString &ppd, const QStringList &claimedKeys, SessionSetup setup = {}) {
    page.reset();
    session = beginSession(ppd, std::move(setup));
    page = std::make_unique<OptionsPage>(*session, claimedKeys);
    page->resize(600, 450);
    page->show();
    page->activateWindow();
    QCoreApplication::processEvents();
    view = page->findChild<QTreeView *>("options");
  }

  template <typename Control>
  Control *find(const char *name) {
    return page->findChild<Control *>(QLatin1String(name));
  }

  QModelIndex row(const QString &text) {
    const QAbstractItemModel *model = view->model();
    for (int group = 0; group < model->rowCount(); ++group) {
      const QModelIndex parent = model->index(group, 0);
      for (int i = 0; i < model->rowCount(parent); ++i) {
        if (model->index(i, 0, parent).data().toString() == text) return model->index(i, 0, parent);
      }
    }
    return {};
  }

  QString choiceOf(const QString &option) {
    return row(option).siblingAtColumn(1).data().toString();
  }

  ChoiceBox *editor() {
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    return view->findChild<ChoiceBox *>();
  }

  QString marked(const char *option) { return session->marks().marked(QLatin1String(option)); }

  std::unique_ptr<PrintSession> session;
  std::unique_ptr<OptionsPage> page;
  QTreeView *view = nullptr;
};

}  // namespace orvek::test
