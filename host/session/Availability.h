// SPDX-License-Identifier: Apache-2.0
// Whether a choice can be picked as things stand, and why not, in words. Asks libcups, so both
// forms of constraints and installed equipment count. Leaves the marks as they were.
#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>

#include "host/session/PrintSession.h"

namespace orvek {

/// What a pick of a choice would do. Plain data.
struct ChoiceAvailability {
  enum class Kind {
    /// Nothing but marking it.
    Usable,
    /// Other options would give way.
    Displaces,
    /// It would be undone: equipment is missing, or nothing can give way.
    Unusable
  };
  Kind kind = Kind::Usable;

  /// "needs the Finisher, which this printer doesn't have", "not with Saddle fold"; null where
  /// usable.
  QString reason;

  /// What would give way: "Folding would be set to Off"; null where nothing would.
  QString effect;

  bool isUsable() const { return kind == Kind::Usable; }

  /// Reason and effect as one text; null where usable.
  QString words() const;
};

/// Answers for one session; remembers answers until the session changes. Belongs to the interface's
/// thread; never fails. Borrows the session.
class Availability final : public QObject {
  Q_OBJECT

 public:
  /// Borrows the session, which must outlive this object.
  explicit Availability(PrintSession &session, QObject *parent = nullptr);

  /// Usable for an option without constraints, and for what the PPD lacks.
  ChoiceAvailability of(const QString &option, const QString &choice);

 private:
  ChoiceAvailability find(const OptionChoice &pick);

  PrintSession &m_session;
  /// Options that some constraint names, in lower case.
  QSet<QString> m_constrained;
  QHash<QString, ChoiceAvailability> m_answers;
};

}  // namespace orvek
