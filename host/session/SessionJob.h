// SPDX-License-Identifier: Apache-2.0
// The session's side towards a job: what a job is told beside the printer's options, and all that
// it must say so that it prints what the session shows.
#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include "host/ppd/Marks.h"
#include "host/ticket/AskedOptions.h"
#include "host/ticket/JobOptions.h"
#include "host/ticket/TicketFile.h"

namespace orvek {

class PrintSession;

/// Part of a session, which it borrows and must not outlive; belongs to the interface's thread.
/// Only take() fails.
class SessionJob {
 public:
  explicit SessionJob(PrintSession &session) : m_session(session) {}

  /// Copies, pages, orientation. Collation is picked where the PPD has the option.
  JobSettings settings() const;
  void setSettings(const JobSettings &settings);

  /// Puts back what settings() gave at another time; marks are not touched.
  void restore(const JobSettings &settings) { m_settings = settings; }

  /// For the session's beginning: settings as its queue's options have them.
  void beginAsSaved();

  /// As the session began.
  const JobSettings &firstSettings() const { return m_first; }

  /// How many pages the document has; 0: unknown. No part of the job: what is said of it depends on
  /// it.
  int documentPages() const { return m_documentPages; }
  /// Whether these are PostScript's, which the print system's filters treat by other rules.
  bool documentIsScript() const { return m_documentIsScript; }
  void setDocumentPages(int pages, bool isScript = false);

  /// Reads an option of the command line that is about job settings: false where it is none, or the
  /// PPD has an option for it; a Usage failure where its value makes no sense.
  Result<bool> take(const QString &name, const QString &value);

  /// Picks what a print server's word ("sides") stands for in the PPD, read together with the
  /// job's other options: one that names the PPD's option itself wins. Nothing where it stands for
  /// nothing. The ticket is the word's place.
  void pickWord(const OptionChoice &word, const QList<OptionChoice> &beside);

  /// The layout: pages on a sheet, 0 for one.
  int pagesPerSheet() const;
  void setPagesPerSheet(int pages);

  /// The same by a user's hand: panels look at once. A booklet, which has a layout of its own, goes
  /// off for several pages, and that is said.
  void pickPagesPerSheet(int pages);

  /// The choice of PageSize that a booklet is to be made for; null: the job's own paper.
  QString sheetPaper() const;

  /// What a job must say: every marked choice that is not the PPD's default or not the queue's,
  /// every ticket key, and in the words of the print server the pages per sheet, the job settings,
  /// and what was asked for in such words and still stands.
  QMap<QString, QString> options();

  /// The options saved for the queue that go with a job that says `said`, which is options():
  /// nothing in there overrules them.
  QMap<QString, QString> savedOptions(const QMap<QString, QString> &said);

  /// Those of the queue's options that must not go with the job: words for which something else is
  /// marked by now.
  QStringList overruledOptions();

  /// The options whose marked choice is custom: its values look like a collection to libcups.
  QStringList optionsWithCustomValues() const;

  /// The ticket without the words for which something else is marked by now.
  TicketValues ticketToKeep();

 private:
  bool printerCollates() const;
  void pickUnrecorded(const OptionChoice &choice);
  JobSources sources() const;

  PrintSession &m_session;
  JobSettings m_settings;
  AskedOptions m_asked;
  AskedOptions m_saved;
  JobSettings m_first;
  int m_documentPages = 0;
  bool m_documentIsScript = false;
};

}  // namespace orvek
