// SPDX-License-Identifier: Apache-2.0
// A bar beside the buttons that says what happened, with a way back where there is one. Shows
// words, knows no session.
#pragma once

#include <QFrame>
#include <QStringList>

class QLabel;
class QPushButton;
class QToolButton;

namespace orvek {

/// Hidden while it has nothing to say. Screen readers know it as a notification and are told when
/// it speaks. Belongs to its parent, owns its child controls, and lives on the interface's thread.
/// Nothing fails.
class NoticeBar final : public QFrame {
  Q_OBJECT

 public:
  enum class Kind { Information, Problem };

  /// One of the notices that stand. Plain data.
  struct Notice {
    Kind kind = Kind::Information;
    /// One a line.
    QStringList sentences;
    /// What its Undo would take back, newest first; empty: it has none.
    QStringList takesBack = {};
    /// Whether what failed can be tried again from here.
    bool offersAgain = false;
    /// Its place among all that stand, from 1.
    int place = 1;
    int count = 1;
  };

  explicit NoticeBar(QWidget *parent = nullptr);

  /// Shows this one, in place of what stood there, and tells screen readers where its words are
  /// new to the user.
  void say(const Notice &notice, bool isNew);

  /// The sentences shown; empty while hidden.
  const QStringList &sentences() const { return m_sentences; }

  /// Hides the bar.
  void fallSilent();

 Q_SIGNALS:
  void undoAsked();
  /// What failed is to be tried once more.
  void againAsked();
  /// The user has read it.
  void dismissed();
  /// Another one that stands is to be shown, that many places on.
  void turned(int places);

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  void nameParts();
  QToolButton *addTurn(const char *name, Qt::ArrowType arrow, int places, const QString &text);
  void showKind();
  void showUndo(const QStringList &takesBack);
  void showPlace(int place, int count);

  Kind m_kind = Kind::Information;
  QStringList m_sentences;
  QLabel *m_icon;
  QLabel *m_text;
  QPushButton *m_undo;
  QPushButton *m_again;
  QToolButton *m_earlier;
  QLabel *m_place;
  QToolButton *m_later;
  QToolButton *m_close;
};

}  // namespace orvek
