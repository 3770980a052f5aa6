// SPDX-License-Identifier: Apache-2.0
// All marks of a PPD at one moment, to compare with and to go back to.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <memory>

namespace orvek {

/// Made by Marks::snapshot(), which also goes back to it. Belongs to that PPD and must not outlive
/// it; nothing fails. Compares equal to another one of the same PPD where the same choices are
/// marked, with the same custom values. Shares its copy of the marks with copies of itself. For the
/// thread of that PPD.
class MarksSnapshot {
 public:
  bool operator==(const MarksSnapshot &other) const;

 private:
  friend class Marks;

  // A copy of libcups' own list of marks. Copying that is what a pick can afford where there are
  // thousands of options; walking it is not.
  std::shared_ptr<void> m_marked;
  /// As in Marks.
  QMap<QString, QString> m_customValues;
  /// Libcups' flag of each paper size, in its order.
  QByteArray m_markedSizes;
};

}  // namespace orvek
