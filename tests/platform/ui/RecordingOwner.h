// SPDX-License-Identifier: Apache-2.0
// An owner of controls that writes down which of its operations were called, and by whom.
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QList>
#include <QObject>
#include <QPair>

namespace orvek::test {

class RecordingOwner : public QObject {
  Q_OBJECT
  Q_PROPERTY(QWidget *pdeView MEMBER pdeView)
  Q_PROPERTY(QComboBox *foldingPopup MEMBER foldingPopup)
  Q_PROPERTY(QLineEdit *gutterTxtBox MEMBER gutterTxtBox)

 public:
  Q_INVOKABLE void change(QWidget *sender) { calls << qMakePair(QStringLiteral("change"), sender); }
  Q_INVOKABLE void change_with(QWidget *sender) {
    calls << qMakePair(QStringLiteral("change_with"), sender);
  }
  Q_INVOKABLE void controlTextDidChange(QWidget *sender) {
    calls << qMakePair(QStringLiteral("controlTextDidChange"), sender);
  }
  Q_INVOKABLE void withoutSender() { calls << qMakePair(QStringLiteral("withoutSender"), nullptr); }

  QWidget *pdeView = nullptr;
  QComboBox *foldingPopup = nullptr;
  QLineEdit *gutterTxtBox = nullptr;
  QList<QPair<QString, QWidget *>> calls;
};

}  // namespace orvek::test
