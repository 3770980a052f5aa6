// SPDX-License-Identifier: Apache-2.0
// Rows change one by one where the printers are the same as before.

#include "host/dialog/PrinterModel.h"

#include <algorithm>

#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

QString joined(const QStringList &parts, const QString &between) {
  QStringList filled = parts;
  filled.removeAll(QString());
  return filled.join(between);
}

bool areTheSamePrinters(const QList<PrinterEntry> &one, const QList<PrinterEntry> &other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](const PrinterEntry &here, const PrinterEntry &there) {
                      return here.destination == there.destination;
                    });
}

}  // namespace

bool PrinterModel::setEntries(const QList<PrinterEntry> &entries) {
  if (entries == m_entries) return false;
  if (!areTheSamePrinters(entries, m_entries)) {
    beginResetModel();
    m_entries = entries;
    endResetModel();
    return true;
  }
  for (int row = 0; row < entries.size(); ++row) {
    if (m_entries[row] == entries[row]) continue;
    m_entries[row] = entries[row];
    Q_EMIT dataChanged(index(row), index(row));
  }
  return true;
}

int PrinterModel::rowOf(const QString &destination) const {
  const auto found = std::find_if(
      m_entries.begin(), m_entries.end(),
      [&destination](const PrinterEntry &entry) { return entry.destination == destination; });
  return found == m_entries.end() ? -1 : static_cast<int>(found - m_entries.begin());
}

int PrinterModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

QVariant PrinterModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid() || index.row() >= m_entries.size()) return {};
  const PrinterEntry &entry = m_entries[index.row()];
  if (role != LastRecentRole) return textOf(entry, role);
  const bool isLast = index.row() + 1 == m_entries.size();
  return entry.isRecent && !isLast && !m_entries[index.row() + 1].isRecent;
}

QVariant PrinterModel::textOf(const PrinterEntry &entry, int role) const {
  switch (role) {
    case Qt::DisplayRole:
      return entry.title;
    case Qt::ToolTipRole:
      return plainToolTip(joined({entry.title, entry.info, entry.detail}, QStringLiteral("\n")));
    case Qt::AccessibleTextRole:
      return joined(
          {entry.title, entry.info, entry.isRecent ? tr("used lately") : QString(), entry.detail},
          QStringLiteral(", "));
    case DestinationRole:
      return entry.destination;
    case InfoRole:
      return entry.info;
    case DetailRole:
      return entry.detail;
    case SearchRole:
      return joined({entry.title, entry.info, entry.location}, QStringLiteral("\n"));
    default:
      return {};
  }
}

Qt::ItemFlags PrinterModel::flags(const QModelIndex &index) const {
  const bool isUsable = index.isValid() && m_entries.value(index.row()).isUsable;
  return isUsable ? QAbstractListModel::flags(index) | Qt::ItemNeverHasChildren
                  : Qt::ItemNeverHasChildren;
}

}  // namespace orvek
