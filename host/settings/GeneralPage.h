// SPDX-License-Identifier: Apache-2.0
// The page of settings that everyone expects, but for those that always stand above the pages.
// Shows and changes a session; no rules of its own.
#pragma once

#include <QList>
#include <QWidget>

#include "host/session/CommonSettings.h"
#include "host/session/JobChoices.h"
#include "host/session/PrintSession.h"
#include "host/settings/GeneralState.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;

namespace orvek {

class Availability;
class ChoiceBox;
class CustomSizeRow;

/// Paper size, source and type; orientation, scaling, pages per sheet and their order, odd and even
/// pages; colour, quality; banner page, time and priority. A row that printer or print server have
/// nothing for is hidden.
/// Borrows the session, which must outlive it. Belongs to its parent, owns its child controls, and
/// lives on the interface's thread. Nothing fails: a pick that was refused is the session's to say.
class GeneralPage final : public QWidget {
  Q_OBJECT

 public:
  /// Borrows the session, which must outlive the page.
  explicit GeneralPage(PrintSession &session, QWidget *parent = nullptr);

 protected:
  void showEvent(QShowEvent *event) override;

 private:
  struct ChoiceRow {
    /// Its place among the state's settings.
    int setting;
    QLabel *label;
    ChoiceBox *box;
  };

  void addPaperRows();
  void addLayoutRows();
  void addQualityRows();
  void addGap();
  QLabel *addRow(const QString &text, QWidget *field);
  void addChoiceRow(int setting, const QString &name, const QString &usual);
  void addChoiceRow(CommonSetting setting, const QString &name, const QString &usual) {
    addChoiceRow(static_cast<int>(setting), name, usual);
  }
  void addJobRow(JobChoice choice, const QString &name);
  void addServerRows();
  void addFurtherRows();
  QComboBox *addListRow(const QString &name, const QString &title);

  void followSession();
  void showState();
  void showChoice(const ChoiceRow &row, const std::optional<Setting> &setting);
  void showCustomPaper(const std::optional<CustomPaper> &paper);
  void pickChoice(int setting, const QString &choice);
  void pickCustomPaper(const Setting &setting);

  PrintSession &m_session;
  /// What is shown.
  GeneralState m_state;
  Availability *m_availability;
  QFormLayout *m_form;
  QCheckBox *m_reverse = nullptr;
  CustomSizeRow *m_customSize = nullptr;
  QComboBox *m_orientation = nullptr;
  QComboBox *m_pagesPerSheet = nullptr;
  QList<ChoiceRow> m_choiceRows;
};

}  // namespace orvek
