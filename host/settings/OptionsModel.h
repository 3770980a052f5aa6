// SPDX-License-Identifier: Apache-2.0
// The options of a page as a tree for a view: groups, and under them an option and its choice in
// two columns. No widgets, so thousands of options cost what their texts cost.
#pragma once

#include <QAbstractItemModel>

#include "host/session/PrintSession.h"
#include "host/settings/OptionList.h"

namespace orvek {

/// Borrows the session, which must outlive it. Belongs to its parent and lives on the interface's
/// thread; an index that is not its own has no data. Nothing fails.
class OptionsModel final : public QAbstractItemModel {
  Q_OBJECT

 public:
  enum Column { OptionColumn, ChoiceColumn, columns };

  /// Borrows the session, which must outlive the model.
  OptionsModel(PrintSession &session, QList<OptionGroup> groups, QObject *parent = nullptr);

  /// Shows only options that match the words (empty: all) and, where asked, only changed ones.
  void setFilter(const QString &words, bool onlyChanged);
  bool isFiltered() const { return !m_words.isEmpty() || m_onlyChanged; }

  /// The option at an index; null for a group's.
  const OptionEntry *entryAt(const QModelIndex &index) const;
  bool isChangedAt(const QModelIndex &index) const;

  /// True for the choice of an option that is on or off.
  bool isSwitchAt(const QModelIndex &index) const;

  /// All options that are not what they would be by themselves, shown or not, with what that is.
  const QList<OptionChoice> &changed() const { return m_changed; }

  QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
  QModelIndex parent(const QModelIndex &index) const override;
  int rowCount(const QModelIndex &parent = {}) const override;
  int columnCount(const QModelIndex &parent = {}) const override;
  QVariant data(const QModelIndex &index, int role) const override;
  bool setData(const QModelIndex &index, const QVariant &value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex &index) const override;

 private:
  struct Shown {
    int group;
    QList<int> options;
  };

  void followSession();
  void findChanged();
  void filter();
  bool matchesSearch(int group, int option) const;
  QString choiceTextOf(const OptionEntry &entry) const;
  QVariant groupData(int group, int column, int role) const;
  QVariant optionData(const OptionEntry &entry, int column, int role) const;
  QString description(const OptionEntry &entry) const;

  PrintSession &m_session;
  QList<OptionGroup> m_groups;
  /// By group and option; empty until the first search.
  QList<QStringList> m_searchTexts;
  QList<OptionChoice> m_changed;
  QList<Shown> m_shown;
  QString m_words;
  bool m_onlyChanged = false;
};

}  // namespace orvek
