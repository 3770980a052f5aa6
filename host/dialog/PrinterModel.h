// SPDX-License-Identifier: Apache-2.0
// What the chooser of printers has on offer, as rows of a list. Knows no server.
#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>

namespace orvek {

/// One row. Plain data.
struct PrinterEntry {
  /// "NAME/INSTANCE"; empty: a file.
  QString destination;
  QString title;
  /// What its administrator calls it; empty: nothing that the title does not say.
  QString info;
  /// Its state, why, and where it stands.
  QString detail;
  /// Empty: nothing that title and info do not say.
  QString location;
  /// Whether the user printed there lately.
  bool isRecent = false;
  bool isUsable = true;

  bool operator==(const PrinterEntry &) const = default;
};

/// Holds the rows in the order in which they were given. Belongs to its parent and lives on the
/// interface's thread; nothing fails.
class PrinterModel final : public QAbstractListModel {
  Q_OBJECT

 public:
  enum Role {
    /// A QString, as everything but LastRecentRole.
    DestinationRole = Qt::UserRole,
    InfoRole,
    DetailRole,
    /// What a search looks through.
    SearchRole,
    /// True in the last row of those used lately, where others follow.
    LastRecentRole
  };

  using QAbstractListModel::QAbstractListModel;

  /// Tells views of what changed, and of nothing where nothing did. False: nothing did.
  bool setEntries(const QList<PrinterEntry> &entries);

  /// -1: there is none.
  int rowOf(const QString &destination) const;

  int rowCount(const QModelIndex &parent = {}) const override;
  QVariant data(const QModelIndex &index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex &index) const override;

 private:
  QVariant textOf(const PrinterEntry &entry, int role) const;

  QList<PrinterEntry> m_entries;
};

}  // namespace orvek
