// SPDX-License-Identifier: Apache-2.0
// Which options a PPD's constraints name together: *UIConstraints, *NonUIConstraints and
// *cupsUIConstraints, by their names only.
#pragma once

#include <QSet>
#include <QString>
#include <utility>

struct ppd_file_s;

namespace orvek {

/// Read once, as a PPD may have thousands of constraints and a pick asks about each that changes.
/// A value; nothing fails.
class ConstrainedPairs {
 public:
  /// Of none where there is no PPD.
  static ConstrainedPairs of(const ppd_file_s *ppd);

  /// True where one constraint names both options, without regard to case.
  bool contain(const QString &one, const QString &other) const {
    return m_pairs.contains({one.toLower(), other.toLower()});
  }

  /// Every option that some constraint names, in lower case.
  const QSet<QString> &names() const { return m_names; }

 private:
  void addPair(const QString &one, const QString &other);
  void addName(const QString &name);
  void addList(const QString &list);

  QSet<std::pair<QString, QString>> m_pairs;
  QSet<QString> m_names;
};

}  // namespace orvek
