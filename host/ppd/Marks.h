// SPDX-License-Identifier: Apache-2.0
// Which choice of each PPD option is marked: marking, asking, remembering and going back.
// Touches the marks of a borrowed PPD and nothing else.
//
//   Marking and asking          Marks.cpp
//   Remembering, going back     MarksSnapshot.cpp; trying: MarksTrial.h
//   What a job's options mean   JobMeaning.cpp
#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <optional>

#include "host/ppd/Keyword.h"
#include "host/ppd/MarksSnapshot.h"
#include "host/ppd/PrinterDescription.h"

struct ppd_choice_s;

namespace orvek {

/// The marks of one PPD. Keywords are compared without regard to case and handed out as the PPD
/// spells them; a custom value ("Custom.200x300", "{Angle=90 ...}") as it was given. One choice of
/// an option is marked at a time, also where the PPD allows several ("PickMany"). Whatever moves
/// marks, if only for a moment, is not const. Nothing fails. For one thread at a time, with all
/// that looks at the same PPD. Owns no more than its record of custom values.
class Marks {
 public:
  /// Borrows the printer, which must outlive this object. There is one Marks for a printer. Of
  /// PrinterDescription::none() no choice is known, and nothing can be marked.
  explicit Marks(const PrinterDescription &printer);
  Marks(const Marks &) = delete;
  Marks &operator=(const Marks &) = delete;

  const PrinterDescription &printer() const { return m_printer; }

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
  /// choice give nothing. All marks are away meanwhile, and afterwards as before. Spelled as the
  /// PPD spells them, in its order.
  QList<OptionChoice> meaningOf(const QList<OptionChoice> &jobOptions);

  MarksSnapshot snapshot() const;
  void restore(const MarksSnapshot &snapshot);

  /// The options whose mark is another one than in the snapshot, in the PPD's order.
  QStringList differingFrom(const MarksSnapshot &snapshot) const;

 private:
  QString choiceName(const ppd_choice_s *choice) const;
  QList<OptionChoice> named(const QList<ppd_choice_s *> &choices) const;
  void takeAllMarks();
  void markCustomValuesAgain();

  const PrinterDescription &m_printer;
  ppd_file_s *m_ppd;
  /// Option to what its "Custom" choice stands for.
  QMap<QString, QString> m_customValues;
};

}  // namespace orvek
