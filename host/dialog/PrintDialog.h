// SPDX-License-Identifier: Apache-2.0
// The window: a view over a print session. It has no rules of its own about marks, constraints,
// tickets or jobs; it shows what the session says and asks it for what the user wants.
//
//   Parts, in the window from top to bottom            Sources
//   DocumentHeader    what is printed                  PrintDialog         parts and what they show
//   ChooserRow        where, and with what preset      PrintDialogPrinter  other printers, presets
//   JobStrip          copies, pages, two-sided         PrintDialogJob      a job's way
//   SessionView       pages, preview and summary
//   NoticeBar         what happened; Undo
//   JobBar            progress, Cancel, Print
//
//   Helpers: JobDocuments, what is printed; NoticeKeeper, what the bar says; NoticePlace, its room;
//   PrinterSwitch, the way to another printer; ShownPreset, whether its settings are on show;
//   ScrollingBody, all above the notices; WindowRoom, the window's size; HistoryKeys, Undo and
//   Redo; WheelGuard, what scrolling changes
#pragma once

#include <QDialog>
#include <functional>
#include <memory>
#include <optional>

#include "host/dialog/DialogSetup.h"
#include "host/dialog/PrinterSwitch.h"
#include "host/jobs/BackgroundJob.h"
#include "host/presets/SessionPreset.h"

class QVBoxLayout;

namespace orvek {

class ChooserRow;
class DocumentHeader;
class JobBar;
class JobDocuments;
class JobStrip;
class NoticeBar;
class NoticeKeeper;
class PrinterChooser;
class SessionView;
class ShownPreset;

/// Borrows the first session and owns those that it begins itself. Failures are shown beside
/// the buttons, in the user's language. Lives on the interface's thread; questions and jobs run on
/// threads of their own, which end before it does.
class PrintDialog final : public QDialog {
  Q_OBJECT

 public:
  /// Borrows the session, which must outlive the window.
  PrintDialog(PrintSession &session, DialogSetup setup, QWidget *parent = nullptr);
  ~PrintDialog() override;

  /// The session on show: the one it was made with, or the one of a printer that came since.
  PrintSession &session() const { return *m_session; }

  /// What is known of the document by now. One that comes once, and that could be read, is a file
  /// by then, which lives as long as the window.
  const DocumentInfo &document() const;

  /// What is to be printed, as it was named.
  const QStringList &files() const;

  /// Reads the document and asks the server for its printers, and for the first one where that is
  /// still to come, all in the background.
  void lookAround();

  /// What became of the job, and what it was; nothing where none was printed.
  const std::optional<JobOutcome> &outcome() const { return m_outcome; }
  const JobRequest &request() const { return m_request; }

  /// Says what went wrong, beside the buttons; with `again` the user can try it once more.
  void showProblem(const Failure &failure, const std::function<void()> &again = {});

  /// Prints as the Print button does.
  void print();

  /// A running job is stopped first; without one the window closes.
  void reject() override;

  /// Shown for the first time, it gets a size that fits its screen.
  void setVisible(bool isVisible) override;

 Q_SIGNALS:
  /// The printer that the window was made for did not come, and why. It has been said by then, and
  /// the user can have it asked for again.
  void firstFailed(const orvek::Failure &failure);

  /// It has come, or another one that the user chose in its place.
  void firstTaken();

 protected:
  bool focusNextPrevChild(bool next) override;

 private:
  /// A question for another printer. Plain data.
  struct Question {
    DialogSetup::AskPrinter asked;
    /// A destination or a file.
    QString what;
    /// Where the jobs will go.
    QString destination;
    /// What the chooser shows meanwhile.
    QString shown;
    QString words;
    /// Whether it may be answered otherwise next time.
    bool isForServer = true;
  };

  // Parts and what they show
  void build();
  void buildViews(PrintSession &session);
  QWidget *buildHeader();
  QWidget *buildBody();
  QWidget *buildFoot();
  void connectParts();
  void followSession();
  void updateControls();
  void showHeader();
  void followDocuments();
  QString obstacle() const;

  // Other printers, presets
  void choosePrinter(const QString &destination);
  void followPrinters();
  void chooseDescription();
  void askFirst();
  void ask(const Question &question);
  void askAgain(const Question &question);
  bool awaitsFirst() const { return m_lacksFirst && m_switch.isAsking(); }
  void moveTo(PrinterSwitch::Session opened, const QString &destination);
  void takeFirst(std::unique_ptr<PrintSession> session, const QString &destination);
  void takeSession(std::unique_ptr<PrintSession> session, const QString &destination);
  void beginWithApplied();
  void applyPicked(const PresetEntry &entry, const Preset &preset);
  void showMisfits(const QString &opening, const QList<PresetMisfit> &misfits);

  // A job's way
  JobRequest gatherRequest();
  bool completeRequest(JobRequest *request);
  bool hasAskedForPlace() const;
  BackgroundJob::Work workFor(const JobRequest &request) const;
  bool acceptsWarnings();
  void start();
  bool acceptsSheets(const JobOutcome &outcome);
  void showProgress(const JobProgress &progress);
  void end(const JobOutcome &outcome);
  void showFailure(const Failure &failure);

  /// Of a printer that came after the window.
  std::unique_ptr<PrintSession> m_ownSession;
  PrintSession *m_session;
  DialogSetup m_setup;
  JobRequest m_request;
  std::optional<JobOutcome> m_outcome;
  bool m_isCancelling = false;
  /// Until a printer has come, for the first that is asked for or for another.
  bool m_lacksFirst = false;
  /// The last one.
  Question m_question;
  /// What is said of a printer that has gone; empty: it is there.
  QStringList m_goneWords;

  DocumentHeader *m_header = nullptr;
  JobDocuments *m_documents = nullptr;
  QWidget *m_documentMenu = nullptr;
  ChooserRow *m_choosers = nullptr;
  PrinterChooser *m_printers = nullptr;
  /// Null: no presets.
  ShownPreset *m_shownPreset = nullptr;
  /// Strip and view stand in it.
  QVBoxLayout *m_body = nullptr;
  NoticeBar *m_noticeBar = nullptr;
  NoticeKeeper *m_notices = nullptr;
  /// Strip and view are the session's: another session has others.
  JobStrip *m_strip = nullptr;
  SessionView *m_view = nullptr;
  JobBar *m_jobBar = nullptr;
  BackgroundJob *m_job = nullptr;
  /// The last: it ends before what it reports to.
  PrinterSwitch m_switch;
};

}  // namespace orvek
