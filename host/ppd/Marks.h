// SPDX-License-Identifier: Apache-2.0
// Which choice of each PPD option is marked: marking, asking, remembering and going back.
// Touches the marks of a borrowed PPD and nothing else.
#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

#include "platform/printing/PPD.h"

namespace orvek {

/// A PPD option's main keyword and the keyword of one of its choices (null: none).
struct OptionChoice {
  QString option;
  QString choice;

  bool operator==(const OptionChoice &) const = default;
};

/// All marks of a PPD at one moment. Belongs to that PPD and must not outlive it; compares equal to
/// another one of the same PPD where the same choices are marked, with the same custom values.
class MarksSnapshot {
 public:
  bool operator==(const MarksSnapshot &other) const;

 private:
  friend class Marks;

  QList<ppd_choice_t *> choices() const;

  // A copy of the PPD's own list of marks. Copying that is what a pick can afford where there are
  // thousands of options; walking it is not.
  std::shared_ptr<cups_array_t> m_marked;
  QMap<QString, QString> m_customValues;  // as in Marks
};

/// The marks of one PPD. Keywords are compared without regard to case and handed out as the PPD
/// spells them; a custom value ("Custom.200x300", "{Angle=90 ...}") as it was given. One choice of
/// an option is marked at a time, also where the PPD allows several ("PickMany").
class Marks {
 public:
  /// Borrows the PPD, which must outlive this object.
  explicit Marks(ppd_file_t *ppd) : m_ppd(ppd) {}

  ppd_file_t *ppd() const { return m_ppd; }

  void markDefaults();

  /// The option and choice as the PPD spells them; nothing where the PPD lacks either, or for an
  /// empty choice.
  std::optional<OptionChoice> spelled(const QString &option, const QString &choice) const;

  /// Marks without a look at constraints. False, and nothing marked, where spelled() gives nothing.
  bool mark(const QString &option, const QString &choice);

  /// The marked choice; null where the option is missing or has none.
  QString marked(const QString &option) const;

  /// Every option that has a marked choice, in the PPD's order.
  QList<OptionChoice> all() const;

  /// Every option that takes part in a constraint now violated, installed equipment included, with
  /// its marked choice.
  QList<OptionChoice> conflicts() const;

  /// Whether the option is among them.
  bool isInConflict(const QString &option) const;

  /// Every marked choice that is not the option's default in the PPD.
  QList<OptionChoice> differingFromDefaults() const;

  /// The choices that libcups marks for a job's options: PPD keywords, and the print server's words
  /// for what a PPD has under names of its own ("media", "sides", "print-quality"). Where both name
  /// one option the keyword wins, and of two words of one name the later. Options that stand for no
  /// choice give nothing. The marks stay as they are. Spelled as the PPD spells them, in its order.
  QList<OptionChoice> meaningOf(const QList<OptionChoice> &jobOptions) const;

  MarksSnapshot snapshot() const;
  void restore(const MarksSnapshot &snapshot);

  /// The options whose mark is another one than in the snapshot, in the PPD's order.
  QStringList differingFrom(const MarksSnapshot &snapshot) const;

 private:
  QString choiceName(const ppd_choice_t *choice) const;
  QList<OptionChoice> named(const QList<ppd_choice_t *> &choices) const;
  void unmark(ppd_choice_t *choice);

  ppd_file_t *m_ppd;
  QMap<QString, QString> m_customValues;  // option to what its "Custom" choice stands for
};

}  // namespace orvek
