// SPDX-License-Identifier: Apache-2.0
// A combo box over a ChoiceModel.

#include "host/settings/ChoiceBox.h"

#include <QSignalBlocker>

#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

constexpr int usualLetters = 22;
constexpr int itemsAtOnce = 20;

}  // namespace

ChoiceBox::ChoiceBox(Availability *availability, QWidget *parent)
    : QComboBox(parent), m_choices(new ChoiceModel(availability, this)) {
  setModel(m_choices);
  setMaxVisibleItems(itemsAtOnce);
  // Measuring every choice of every pop-up is what makes a dialog slow to open.
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(usualLetters);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setFocusPolicy(Qt::StrongFocus);
  connect(this, &QComboBox::activated, this,
          [this](int row) { Q_EMIT choicePicked(m_choices->keywordAt(row)); });
}

void ChoiceBox::setChoices(const QString &option, const QList<SettingChoice> &choices) {
  const QSignalBlocker silent(this);
  m_choices->setChoices(option, choices);
}

void ChoiceBox::setChoice(const QString &keyword) {
  const QSignalBlocker silent(this);
  setCurrentIndex(m_choices->rowOf(keyword));
  const QModelIndex current = m_choices->index(currentIndex());
  setToolTip(plainToolTip(m_choices->data(current, Qt::AccessibleDescriptionRole).toString()));
}

}  // namespace orvek
