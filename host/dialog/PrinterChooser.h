// SPDX-License-Identifier: Apache-2.0
// The pop-up of printers: every queue with its state in words, and a file; beside it a button for a
// printer that is a file itself. Asks the server in the background; opens no queue itself.
#pragma once

#include <QSet>
#include <QTimer>
#include <QWidget>

#include "host/dialog/PrinterModel.h"
#include "host/printers/BackgroundTask.h"
#include "host/printers/PrinterList.h"

class QComboBox;
class QToolButton;

namespace orvek {

class ElidedLabel;
class PrinterMenu;

/// Asks the server on a thread of its own, which ends before the chooser does; where the server
/// fails, the list says why in the user's language. Once it was asked, it is asked again every few
/// seconds for as long as the chooser is seen. Belongs to its parent, owns its child controls, and
/// lives on the interface's thread.
class PrinterChooser final : public QWidget {
  Q_OBJECT

 public:
  explicit PrinterChooser(ServerAccess access, QWidget *parent = nullptr);

  /// Asks the server for its queues; `listed` follows.
  void refresh();

  /// Shows a destination ("NAME/INSTANCE"; empty: a file) without a word to anyone.
  void show(const QString &destination);

  /// The same, with these words in place of its state: until the next show() it is being asked for.
  void showAsked(const QString &destination, const QString &words);

  /// Those that the user printed on lately stand before the others, the last one first.
  void setRecent(const QStringList &destinations);

  /// What a file is printed for.
  void setFileModel(const QString &model);

  /// Without a printer description nothing can be printed into a file.
  void setFileIsPossible(bool isPossible);

  QString destination() const;

  /// Whether the queue on show was there once and is no more, as far as the server has told.
  bool isGone() const;

  QComboBox *menu() const;

 Q_SIGNALS:
  /// The user picked another one, or any while one is being asked for.
  void chosen(const QString &destination);

  /// The user wants a printer description from a file.
  void descriptionAsked();

  /// The server answered, or said why not.
  void listed();

 protected:
  void showEvent(QShowEvent *event) override;

 private:
  using Answer = Result<QList<Queue>>;

  void buildOpen();
  void connectParts();
  void ask();
  void poll();
  void take(const Answer &answer);
  void fill(const QString &destination);
  QList<PrinterEntry> entries() const;
  PrinterEntry fileEntry() const;
  void showNote();
  void pick(const QString &destination);
  void showDetail();

  ServerAccess m_access;
  QList<Queue> m_queues;
  /// Every one that the server ever listed.
  QSet<QString> m_everListed;
  QStringList m_recent;
  /// Why there is no list; null: there is one, or nobody asked yet.
  QString m_problem;
  QString m_destination;
  /// In words; null: nothing is being asked for.
  QString m_asking;
  QString m_fileModel;
  bool m_fileIsPossible = true;
  bool m_wasAsked = false;
  /// Whether somebody waits for the answer, and not just looks for what has changed.
  bool m_isAwaited = false;
  PrinterModel m_printers;
  PrinterMenu *m_menu;
  QToolButton *m_open;
  ElidedLabel *m_detail;
  QTimer m_poll;
  /// The last: it ends before what it reports to.
  BackgroundTask m_task;
};

}  // namespace orvek
