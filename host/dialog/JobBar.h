// SPDX-License-Identifier: Apache-2.0
// The dialog's last row: Print and Cancel, and a job's progress. Shows and asks, knows no job.
#pragma once

#include <QString>
#include <QWidget>

class QProgressBar;
class QPushButton;

namespace orvek {

class ElidedLabel;

/// What the row shows. Plain data.
struct JobBarState {
  bool canPrint = true;
  /// Print will ask where to.
  bool asksForFile = false;
  bool isPrinting = false;
  bool isCancelling = false;
  /// Why nothing can be printed, in one sentence; null: nothing is to be said.
  QString obstacle;

  bool operator==(const JobBarState &) const = default;
};

/// Emits what was asked for and does nothing by itself. Belongs to its parent, owns its child
/// controls, and lives on the interface's thread. Nothing fails.
class JobBar final : public QWidget {
  Q_OBJECT

 public:
  explicit JobBar(QWidget *parent = nullptr);

  /// Enabled, visible and texts of all controls come from the state, and from here alone.
  void setState(const JobBarState &state);

  /// How far the job is, in words, and in percent (-1: nobody knows).
  void setProgress(const QString &words, int percent);

 Q_SIGNALS:
  void printAsked();
  void cancelAsked();

 private:
  void showObstacle(const QString &obstacle);

  ElidedLabel *m_words;
  QProgressBar *m_progress;
  QPushButton *m_print;
  QPushButton *m_cancel;
};

}  // namespace orvek
