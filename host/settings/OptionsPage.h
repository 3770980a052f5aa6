// SPDX-License-Identifier: Apache-2.0
// Every option of the printer that no other page shows: grouped, searchable, changed ones marked
// and easy to set back.
#pragma once

#include <QStringList>
#include <QWidget>

#include "host/session/PrintSession.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace orvek {

class CustomValueForm;
class OptionsModel;
class OptionsView;

/// Borrows the session, which must outlive it. Belongs to its parent, owns its child controls, and
/// lives on the interface's thread. Nothing fails: a pick that was refused is the session's to say.
class OptionsPage final : public QWidget {
  Q_OBJECT

 public:
  /// Leaves out the options of `claimedKeys` (panels') and those of the general page. Borrows the
  /// session, which must outlive the page.
  OptionsPage(PrintSession &session, const QStringList &claimedKeys, QWidget *parent = nullptr);

 protected:
  void showEvent(QShowEvent *event) override;

 private:
  void build();
  void connectParts();
  void updateControls();
  void updateCustomValues();
  void askForCustomValues(const QString &option);
  void setBack();
  void setAllBack();

  PrintSession &m_session;
  OptionsModel *m_model;
  OptionsView *m_view;
  CustomValueForm *m_custom;
  /// Whose fields are open though another choice is marked; null: none.
  QString m_customOption;
  QLineEdit *m_search;
  QCheckBox *m_onlyChanged;
  QLabel *m_state;
  QPushButton *m_setBack;
  QPushButton *m_setAllBack;
};

}  // namespace orvek
