// SPDX-License-Identifier: Apache-2.0
// The choices of one option as a pop-up shows them: all of them, those that can't be used greyed
// and with their reason. Asks about availability only for what is looked at.
#pragma once

#include <QAbstractListModel>
#include <QList>

#include "host/printers/SettingOffer.h"
#include "host/session/Availability.h"

namespace orvek {

/// Borrows the availability, which must outlive it. Belongs to its parent and lives on the
/// interface's thread; a row that is not there has no data. Nothing fails.
class ChoiceModel final : public QAbstractListModel {
  Q_OBJECT

 public:
  /// Borrows the availability; null: everything is usable.
  explicit ChoiceModel(Availability *availability, QObject *parent = nullptr);

  /// The choices of an option, in the PPD's order.
  void setChoices(const QString &option, const QList<SettingChoice> &choices);

  /// Reasons and usability may be others now.
  void refresh();

  /// The row of a choice; -1 where there is none. Keywords are compared without regard to case.
  int rowOf(const QString &keyword) const;
  QString keywordAt(int row) const;

  int rowCount(const QModelIndex &parent = {}) const override;
  QVariant data(const QModelIndex &index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex &index) const override;

 private:
  ChoiceAvailability availabilityAt(int row) const;

  Availability *m_availability;
  QString m_option;
  QList<SettingChoice> m_choices;
};

}  // namespace orvek
