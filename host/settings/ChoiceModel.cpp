// SPDX-License-Identifier: Apache-2.0
// Greys a choice that others would have to give way to; disables one that would be undone.

#include "host/settings/ChoiceModel.h"

#include <QApplication>
#include <QPalette>

#include "platform/ui/PlainText.h"

namespace orvek {

ChoiceModel::ChoiceModel(Availability *availability, QObject *parent)
    : QAbstractListModel(parent), m_availability(availability) {}

void ChoiceModel::setChoices(const QString &option, const QList<SettingChoice> &choices) {
  if (option == m_option && choices == m_choices) {
    refresh();
    return;
  }
  beginResetModel();
  m_option = option;
  m_choices = choices;
  endResetModel();
}

void ChoiceModel::refresh() {
  if (m_choices.isEmpty()) return;
  Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

int ChoiceModel::rowOf(const QString &keyword) const {
  for (int row = 0; row < rowCount(); ++row) {
    if (sameKeyword(m_choices[row].keyword, keyword)) return row;
  }
  return -1;
}

QString ChoiceModel::keywordAt(int row) const {
  return row >= 0 && row < rowCount() ? m_choices[row].keyword : QString();
}

int ChoiceModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_choices.size());
}

ChoiceAvailability ChoiceModel::availabilityAt(int row) const {
  if (m_availability == nullptr) return {};
  return m_availability->of(m_option, m_choices[row].keyword);
}

QVariant ChoiceModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  switch (role) {
    case Qt::DisplayRole:
      return m_choices[index.row()].text;
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole: {
      const QString words = availabilityAt(index.row()).words();
      if (words.isNull()) return {};
      return role == Qt::ToolTipRole ? plainToolTip(words) : words;
    }
    case Qt::ForegroundRole:
      if (availabilityAt(index.row()).isUsable()) return {};
      return QApplication::palette().brush(QPalette::Disabled, QPalette::Text);
    default:
      return {};
  }
}

Qt::ItemFlags ChoiceModel::flags(const QModelIndex &index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  const bool isUnusable = availabilityAt(index.row()).kind == ChoiceAvailability::Kind::Unusable;
  return isUnusable ? Qt::NoItemFlags : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

}  // namespace orvek
