// SPDX-License-Identifier: Apache-2.0
// What a window prints: which documents, what is known of them, and what keeps them from being
// printed. Reads them in the background, asks for their passwords and takes others in their place.
#pragma once

#include <QList>
#include <QObject>
#include <QStringList>
#include <memory>

#include "host/jobs/DocumentInfo.h"
#include "host/jobs/InputSpool.h"
#include "host/printers/BackgroundTask.h"

class QWidget;

namespace orvek {

/// The documents of one window, which it borrows. Belongs to its parent and lives on the
/// interface's thread; documents are read on threads of its own, which end before it does. What
/// fails is said in words.
class JobDocuments final : public QObject {
  Q_OBJECT

 public:
  /// `copies`: where opened copies of protected documents are put for the job.
  JobDocuments(std::shared_ptr<DocumentFiles> copies, QWidget *window);

  /// Begins with these documents, called so for people. `known`: of an only one.
  void begin(const QStringList &files, const QString &name, const DocumentInfo &known);

  /// Finds out what can be known of them, and asks for the passwords that are missing.
  void look();

  /// As the job is to have them; none: there are none yet.
  const QStringList &files() const { return m_files; }
  const QString &name() const { return m_name; }

  /// Of an only one, at the path where its pages can be looked at; of several: nothing.
  const DocumentInfo &only() const { return m_only; }

  /// What is to be said of them, in a few words.
  QString detail() const;

  /// Why they can't be printed, in one sentence without a full stop; null where they can.
  QString problem() const;

  /// What the user can do about it, as a button says it; null: nothing is to be done.
  QString remedy() const;
  void applyRemedy();

  /// Has the user choose files in place of the documents, or behind them. One of the documents is
  /// taken out; the last of them stays.
  void chooseFiles();
  void addFiles();
  void remove(qsizetype place);

  /// Files that are dropped on the window come in place of the documents, but while a job runs.
  void setMayChange(bool may) { m_mayChange = may; }

  bool eventFilter(QObject *watched, QEvent *event) override;

 Q_SIGNALS:
  /// Any of the above.
  void changed();

 private:
  struct Opening;

  void take(const QStringList &files);
  void takeKnown(const QList<DocumentInfo> &known);
  /// The first that can't be printed; a usable one where all can.
  DocumentInfo faulty() const;
  bool needsPassword() const;
  void askPassword(bool isRepeated);
  void open(qsizetype place, const QString &password);
  void takeOpened(const Opening &opening);
  int pages() const;

  const std::shared_ptr<DocumentFiles> m_copies;
  QWidget *m_window;
  QStringList m_files;
  QString m_name;
  DocumentInfo m_only;
  /// One for each file; none while nothing is known.
  QList<DocumentInfo> m_known;
  bool m_isOpening = false;
  bool m_mayChange = true;
  /// Ends before what it reports to.
  BackgroundTask m_reading;
};

/// "a.pdf", "a.pdf and 2 more"; null for none.
QString documentsInWords(const QStringList &files);

}  // namespace orvek
