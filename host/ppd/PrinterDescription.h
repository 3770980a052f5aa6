// SPDX-License-Identifier: Apache-2.0
// A printer as its PPD file describes it: opened once, in the user's language, and kept for a
// session. May touch the file system and libcups; knows nothing of marks.
#pragma once

#include <QList>
#include <QString>
#include <memory>
#include <optional>

#include "host/ppd/ConstrainedPairs.h"
#include "host/ppd/Keyword.h"
#include "host/ppd/LocalTexts.h"
#include "host/ppd/PlainConstraints.h"
#include "host/ppd/PrinterOption.h"
#include "platform/system/Result.h"

struct ppd_file_s;
struct ppd_group_s;

namespace orvek {

/// Owns a parsed PPD. What it hands out is lent and lives as long as this object; all but open() is
/// without failure, and what the PPD lacks is null, empty or nothing. For one thread at a time, and
/// may be opened on one and handed to another.
class PrinterDescription {
 public:
  /// Opens and localizes the PPD (plain or gzip). Failures: Io where the file can't be read,
  /// Invalid, with the line, where it is no PPD.
  static Result<std::shared_ptr<PrinterDescription>> open(const QString &path);

  /// The description of a printer of which nothing is known: it has no options.
  static const PrinterDescription &none();

  ~PrinterDescription();
  PrinterDescription(const PrinterDescription &) = delete;
  PrinterDescription &operator=(const PrinterDescription &) = delete;

  /// The file it was read from, as it was named.
  const QString &path() const { return m_path; }

  /// The model's name for people: *NickName, else *ModelName. Null where the PPD names neither.
  QString modelName() const;

  /// Every option, in the PPD's groups and order.
  QList<PrinterOptionGroup> options() const;

  /// The option of this keyword, without regard to case; absent where the PPD lacks it.
  PrinterOption option(const QString &keyword) const;
  bool has(const QString &option) const { return bool(this->option(option)); }

  /// The option's choices, in the PPD's order.
  QList<PrinterChoice> choices(const QString &option) const {
    return this->option(option).choices();
  }

  /// The option and choice as the PPD spells them; nothing where the PPD lacks either, or for an
  /// empty choice.
  std::optional<OptionChoice> spelled(const QString &option, const QString &choice) const;

  /// True for an option of the PPD's group of installed equipment, or of a group within it.
  bool isEquipment(const QString &option) const;

  /// The value of the first line "*KEYWORD: value" or "*KEYWORD word: value"; null where there is
  /// none.
  QString attribute(const char *keyword) const;

  /// The constraints, where each is a plain one; null where not. Read when first asked for.
  const PlainConstraints *plainConstraints() const;

  /// The names that its constraints pair; read when first asked for.
  const ConstrainedPairs &constrainedPairs() const;

  /// The parsed PPD itself; null of none(). The one loan of it: to panels, as their contract has
  /// it, and to this room, which calls libcups with it. Whoever marks in it is a Marks.
  ppd_file_s *lend() const { return m_ppd; }

 private:
  PrinterDescription(QString path, ppd_file_s *ppd);

  void append(const ppd_group_s &group, const QString &text,
              QList<PrinterOptionGroup> *groups) const;

  QString m_path;
  ppd_file_s *m_ppd;
  LocalTexts m_texts;
  mutable std::optional<std::optional<PlainConstraints>> m_plainConstraints;
  mutable std::optional<ConstrainedPairs> m_constrainedPairs;
};

}  // namespace orvek
