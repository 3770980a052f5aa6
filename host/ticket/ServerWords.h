// SPDX-License-Identifier: Apache-2.0
// A print server's words for what a PPD has under names of its own: "sides" for "Duplex", "media"
// for paper size, tray and type. Which marks they stand for, and whether they are still true.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "host/ppd/Marks.h"
#include "host/ticket/TicketFile.h"

namespace orvek {

/// One word, as it was written, with the PPD's options that it speaks of. Some that leave an option
/// at its default speak of it all the same: "print-color-mode" of the color model, whatever its
/// value. Plain data.
struct ServerWord {
  QString name;
  QString value;
  QStringList options;
};

/// The words among a job's options. Keeps copies and borrows nothing; the marks are asked once,
/// which moves them for a moment. Nothing fails. On the thread of the marks.
class ServerWords {
 public:
  /// Passes over what is no word: PPD keywords, and options that stand for no mark. Of two words of
  /// one name the later counts.
  ServerWords(Marks &marks, const QList<OptionChoice> &jobOptions);

  /// Of a queue's options and a ticket, the ticket's word counts.
  static ServerWords of(Marks &marks, const QList<OptionChoice> &queueOptions,
                        const TicketValues &ticket);

  /// All words, with the choices that they stand for together: quality and color share options.
  QList<ServerWord> words() const { return m_words; }
  QList<OptionChoice> choices() const { return m_choices; }

  /// The words that no longer say what is marked, and with them those that speak of an option that
  /// such a word speaks of: it would be read in another light without the other.
  QList<ServerWord> untrue(const Marks &marks) const;

 private:
  bool isTrue(const ServerWord &word, const Marks &marks) const;
  QString expected(const QString &option, const Marks &marks) const;

  QList<ServerWord> m_words;
  QList<OptionChoice> m_choices;
};

/// A ticket without the words that no longer say what is marked.
TicketValues withoutUntrueWords(Marks &marks, TicketValues ticket);

}  // namespace orvek
