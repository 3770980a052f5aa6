// SPDX-License-Identifier: Apache-2.0
// A pop-up of an option's choices. Shows a choice and says what the user picks; changes nothing by
// itself.
#pragma once

#include <QComboBox>

#include "host/settings/ChoiceModel.h"

namespace orvek {

/// Borrows the availability, which must outlive it. Belongs to its parent, owns its child controls,
/// and lives on the interface's thread. Nothing fails.
class ChoiceBox final : public QComboBox {
  Q_OBJECT

 public:
  /// Borrows the availability; null: everything is usable.
  explicit ChoiceBox(Availability *availability, QWidget *parent = nullptr);

  void setChoices(const QString &option, const QList<SettingChoice> &choices);

  /// Shows the choice without a word to anyone. One that is not on offer: no choice is shown.
  void setChoice(const QString &keyword);

  QString choice() const { return m_choices->keywordAt(currentIndex()); }

 Q_SIGNALS:
  /// The user picked another choice.
  void choicePicked(const QString &keyword);

 private:
  ChoiceModel *m_choices;
};

}  // namespace orvek
