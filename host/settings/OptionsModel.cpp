// SPDX-License-Identifier: Apache-2.0
// A group's index has the identifier 0, an option's its group's row plus one.

#include "host/settings/OptionsModel.h"

#include <QFont>
#include <utility>

#include "host/ppd/Wording.h"
#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

constexpr const char *onChoice = "True";
constexpr const char *offChoice = "False";

QList<QStringList> searchTexts(const PrintSession &session, const QList<OptionGroup> &groups) {
  QList<QStringList> texts;
  for (const OptionGroup &group : groups) {
    QStringList ofGroup;
    for (const OptionEntry &entry : group.options) {
      ofGroup << searchText(session.marks().printer(), entry);
    }
    texts << ofGroup;
  }
  return texts;
}

}  // namespace

OptionsModel::OptionsModel(PrintSession &session, QList<OptionGroup> groups, QObject *parent)
    : QAbstractItemModel(parent), m_session(session), m_groups(std::move(groups)) {
  findChanged();
  filter();
  connect(&session, &PrintSession::changed, this, &OptionsModel::followSession);
}

bool OptionsModel::matchesSearch(int group, int option) const {
  return m_words.isEmpty() || m_searchTexts[group][option].contains(m_words, Qt::CaseInsensitive);
}

void OptionsModel::filter() {
  if (!m_words.isEmpty() && m_searchTexts.isEmpty()) {
    m_searchTexts = searchTexts(m_session, m_groups);
  }
  m_shown.clear();
  for (int group = 0; group < m_groups.size(); ++group) {
    const QList<OptionEntry> &options = m_groups[group].options;
    const bool groupMatches = m_groups[group].text.contains(m_words, Qt::CaseInsensitive);
    Shown found{group, {}};
    for (int i = 0; i < options.size(); ++i) {
      if (!groupMatches && !matchesSearch(group, i)) continue;
      if (m_onlyChanged && !isChanged(m_session.marks(), options[i])) continue;
      found.options.append(i);
    }
    if (!found.options.isEmpty()) m_shown.append(found);
  }
}

void OptionsModel::setFilter(const QString &words, bool onlyChanged) {
  const QString simplified = words.simplified();
  if (simplified == m_words && onlyChanged == m_onlyChanged) return;
  beginResetModel();
  m_words = simplified;
  m_onlyChanged = onlyChanged;
  filter();
  endResetModel();
}

// Rows of "only changed" stay until the next search: a row that vanished under the user's hand
// could not be set to something else.
void OptionsModel::followSession() {
  findChanged();
  for (int row = 0; row < m_shown.size(); ++row) {
    const QModelIndex group = index(row, 0);
    Q_EMIT dataChanged(index(0, 0, group), index(rowCount(group) - 1, columns - 1, group));
  }
}

const OptionEntry *OptionsModel::entryAt(const QModelIndex &index) const {
  if (!index.isValid() || index.internalId() == 0) return nullptr;
  const Shown &shown = m_shown[static_cast<qsizetype>(index.internalId()) - 1];
  return &m_groups[shown.group].options[shown.options[index.row()]];
}

bool OptionsModel::isChangedAt(const QModelIndex &index) const {
  const OptionEntry *entry = entryAt(index);
  return entry != nullptr && isChanged(m_session.marks(), *entry);
}

bool OptionsModel::isSwitchAt(const QModelIndex &index) const {
  const OptionEntry *entry = entryAt(index);
  return entry != nullptr && index.column() == ChoiceColumn &&
         m_session.marks().printer().option(entry->keyword).isSwitch();
}

void OptionsModel::findChanged() {
  m_changed.clear();
  for (const OptionGroup &group : m_groups) {
    for (const OptionEntry &entry : group.options) {
      if (isChanged(m_session.marks(), entry)) m_changed.append({entry.keyword, entry.standard});
    }
  }
}

QModelIndex OptionsModel::index(int row, int column, const QModelIndex &parent) const {
  if (row < 0 || column < 0 || column >= columns || row >= rowCount(parent)) return {};
  return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : 0);
}

QModelIndex OptionsModel::parent(const QModelIndex &index) const {
  if (!index.isValid() || index.internalId() == 0) return {};
  return createIndex(static_cast<int>(index.internalId()) - 1, 0, quintptr(0));
}

int OptionsModel::rowCount(const QModelIndex &parent) const {
  if (!parent.isValid()) return static_cast<int>(m_shown.size());
  if (parent.internalId() != 0 || parent.column() != 0) return 0;
  return static_cast<int>(m_shown[parent.row()].options.size());
}

int OptionsModel::columnCount(const QModelIndex &) const {
  return columns;
}

QString OptionsModel::choiceTextOf(const OptionEntry &entry) const {
  const QString marked = m_session.marks().marked(entry.keyword);
  return choiceText(m_session.marks().printer(), {entry.keyword, marked});
}

QString OptionsModel::description(const OptionEntry &entry) const {
  if (!isChanged(m_session.marks(), entry)) return {};
  const QString standard = choiceText(m_session.marks().printer(), {entry.keyword, entry.standard});
  return tr("Changed; by itself: %1").arg(standard);
}

QVariant OptionsModel::groupData(int group, int column, int role) const {
  if (column != OptionColumn) return {};
  switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
      return m_groups[group].text;
    case Qt::FontRole: {
      QFont font;
      font.setBold(true);
      return font;
    }
    default:
      return {};
  }
}

QVariant OptionsModel::optionData(const OptionEntry &entry, int column, int role) const {
  switch (role) {
    case Qt::DisplayRole:
      return column == OptionColumn ? entry.text : choiceTextOf(entry);
    case Qt::AccessibleTextRole:
      return column == OptionColumn
                 ? QString(entry.text + QStringLiteral(": ") + choiceTextOf(entry))
                 : choiceTextOf(entry);
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole: {
      const QString words = description(entry);
      if (words.isNull()) return {};
      return role == Qt::ToolTipRole ? plainToolTip(words) : words;
    }
    case Qt::FontRole: {
      if (column != ChoiceColumn || !isChanged(m_session.marks(), entry)) return {};
      QFont font;
      font.setBold(true);
      return font;
    }
    default:
      return {};
  }
}

QVariant OptionsModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid()) return {};
  const OptionEntry *entry = entryAt(index);
  if (role == Qt::CheckStateRole && isSwitchAt(index)) {
    const bool isOn = m_session.marks().marked(entry->keyword) == QLatin1String(onChoice);
    return isOn ? Qt::Checked : Qt::Unchecked;
  }
  return entry == nullptr ? groupData(m_shown[index.row()].group, index.column(), role)
                          : optionData(*entry, index.column(), role);
}

bool OptionsModel::setData(const QModelIndex &index, const QVariant &value, int role) {
  if (role != Qt::CheckStateRole || !isSwitchAt(index)) return false;
  const bool isOn = value.toInt() == Qt::Checked;
  return m_session.pick(entryAt(index)->keyword,
                        isOn ? QString::fromLatin1(onChoice) : QString::fromLatin1(offChoice));
}

QVariant OptionsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return section == OptionColumn ? tr("Option") : tr("Choice");
}

Qt::ItemFlags OptionsModel::flags(const QModelIndex &index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  const Qt::ItemFlags usual = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (isSwitchAt(index)) return usual | Qt::ItemIsUserCheckable;
  const bool isChoice = entryAt(index) != nullptr && index.column() == ChoiceColumn;
  return isChoice ? usual | Qt::ItemIsEditable : usual;
}

}  // namespace orvek
