// SPDX-License-Identifier: Apache-2.0
// What the tests of settings pages share: sessions on the project's printers, and a user's acts.
#pragma once

#include <QAbstractItemView>
#include <QComboBox>
#include <QTest>
#include <memory>

#include "host/session/PrintSession.h"
#include "tests/support/Printers.h"

namespace orvek::test {

inline QString orvekPpd(const char *model) {
  return QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-%1.ppd").arg(QLatin1String(model));
}

inline std::unique_ptr<PrintSession> beginSession(const QString &ppd, SessionSetup setup = {}) {
  if (!ppd.isNull()) setup.printer = PrinterDescription::open(ppd).take();
  return PrintSession::begin(setup).take();
}

/// Opens the pop-up and picks the row with the keyboard, as a user does. False where the row can't
/// be reached so.
inline bool pickRow(QComboBox *box, int row) {
  box->setFocus();
  box->showPopup();
  QAbstractItemView *list = box->view();
  for (int steps = 0; steps < box->count() && list->currentIndex().row() != row; ++steps) {
    QTest::keyClick(list, list->currentIndex().row() < row ? Qt::Key_Down : Qt::Key_Up);
  }
  const bool reached = list->currentIndex().row() == row;
  QTest::keyClick(list, reached ? Qt::Key_Return : Qt::Key_Escape);
  return reached;
}

inline bool pickText(QComboBox *box, const QString &text) {
  return pickRow(box, box->findText(text));
}

}  // namespace orvek::test
