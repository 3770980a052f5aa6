// SPDX-License-Identifier: Apache-2.0
// What opens below the menu of printers: a line to search in, and the list. Picks nothing by
// itself.
#pragma once

#include <QFrame>
#include <QTimer>

class QKeyEvent;
class QLabel;
class QLineEdit;
class QListView;
class QPushButton;
class QSortFilterProxyModel;

namespace orvek {

class PrinterModel;

/// Up and Down go through the list while the search line has the keyboard, Return takes what is
/// marked, Escape and a click elsewhere close it. Screen readers are told of each row that gets
/// marked. Borrows the model, which must outlive it. Belongs to its parent, owns its child
/// controls, and lives on the interface's thread; nothing fails.
class PrinterPopup final : public QFrame {
  Q_OBJECT

 public:
  PrinterPopup(PrinterModel &printers, QWidget *parent);

  /// Opens at this widget with the row of `destination` marked; with a text in its search line, the
  /// row that this is most likely meant for.
  void openAt(const QWidget &menu, const QString &destination, const QString &typed);

  /// What is to be said below the list; null: nothing. With `offersAgain` there is a button to ask
  /// once more.
  void setNote(const QString &words, bool offersAgain);

 Q_SIGNALS:
  /// The user took this one; the list has closed.
  void taken(const QString &destination);
  void againAsked();
  void closed();

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;
  void hideEvent(QHideEvent *event) override;

 private:
  void nameParts();
  void connectParts();
  void place(const QWidget &menu);
  void search(const QString &text);
  void mark(const QModelIndex &index);
  void markBest(const QString &text);
  void markDestination(const QString &destination);
  void take(const QModelIndex &index);
  void sayMarked();
  bool goesToList(const QKeyEvent &key) const;
  QString marked() const;

  PrinterModel &m_printers;
  QSortFilterProxyModel *m_found;
  QLineEdit *m_search;
  QListView *m_list;
  QLabel *m_none;
  QLabel *m_note;
  QPushButton *m_again;
  /// Marked before the list was changed under the user's hands, and how far it was scrolled.
  QString m_keptMark;
  int m_keptScroll = 0;
  /// Until a search is through, another row is marked at every step.
  QTimer m_saying;
};

}  // namespace orvek
