// SPDX-License-Identifier: Apache-2.0
// The window: a view over a print session. It has no rules of its own about marks, constraints,
// tickets or jobs; it shows what the session says and asks it for what the user wants.
//
//   DocumentHeader    what is printed, and where
//   NoticeBar         what constraints did, what went wrong; Undo
//   SessionView       pages and summary
//   JobBar            progress, Cancel, Print
#pragma once

#include <QDialog>
#include <functional>
#include <optional>

#include "host/jobs/JobRequest.h"
#include "host/session/PrintSession.h"
#include "platform/system/Result.h"

namespace orvek {

class DocumentHeader;
class JobBar;
class JobRunner;
class NoticeBar;
class SessionView;

/// What a window is made for, besides the session.
struct DialogSetup {
  QString documentName;  ///< for people
  int pages = 0;         ///< of the document; 0: unknown

  /// The job as it would be printed now. Where it names neither queue nor output file, Print asks
  /// for a file.
  std::function<JobRequest(const PrintSession &)> jobRequest;
};

class PrintDialog final : public QDialog {
  Q_OBJECT

 public:
  /// Borrows the session, which must outlive the window.
  PrintDialog(PrintSession &session, DialogSetup setup, QWidget *parent = nullptr);
  ~PrintDialog() override;

  /// What became of the job; nothing where none was printed.
  const std::optional<JobOutcome> &outcome() const { return m_outcome; }

  /// Prints as the Print button does.
  void print();

  /// A running job is stopped first; without one the window closes.
  void reject() override;

 protected:
  bool event(QEvent *event) override;

 private:
  void build();
  void connectParts();
  void updateControls();
  void showHeader();
  void showNotice(const QStringList &sentences);
  void followSession();
  void makeRoom();

  bool completeRequest(JobRequest *request);
  void showProgress(const JobProgress &progress);
  void end(const JobOutcome &outcome);
  void showFailure(const Failure &failure);

  PrintSession &m_session;
  DialogSetup m_setup;
  std::optional<JobOutcome> m_outcome;
  MarksSnapshot m_noticedMarks;  // as they stood when the notice was given
  bool m_noticeIsNew = false;    // the action that it belongs to still runs
  bool m_isCancelling = false;
  QSize m_ownSize;  // the size that the window chose last; another one is the user's choice

  DocumentHeader *m_document;
  DocumentHeader *m_printer;
  NoticeBar *m_notices;
  SessionView *m_view;
  JobBar *m_jobBar;
  JobRunner *m_runner;
};

}  // namespace orvek
