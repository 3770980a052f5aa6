// SPDX-License-Identifier: Apache-2.0
// What the notice bar says of a session, and for how long. Knows what an Undo beside a notice would
// take back.
#pragma once

#include <QList>
#include <QObject>
#include <QStringList>
#include <functional>

#include "host/dialog/NoticeBar.h"

namespace orvek {

class PrintSession;

/// A notice stands until the user sends it away or what it is about is taken back; done again, it
/// comes back. Where several stand, the newest is shown, and the others are a key away. Borrows bar
/// and session, of which the bar must outlive it. Belongs to its parent and lives on the
/// interface's thread; nothing fails.
class NoticeKeeper final : public QObject {
  Q_OBJECT

 public:
  NoticeKeeper(NoticeBar &bar, QObject *parent);

  /// From now on says what happens in this session, and no more of the one before. Says nothing at
  /// first.
  void follow(PrintSession &session);

  /// Says what constraints did before anyone followed the session.
  void sayEarlier();

  /// Tries once more what failed.
  using Again = std::function<void()>;

  /// Says it without a way back. The same once more takes the place of the first. With `again` the
  /// user can have that called, which sends the notice away.
  void say(NoticeBar::Kind kind, const QStringList &sentences, const Again &again = {});

  /// Takes back what say() said, once it is true no longer; nothing where the user sent it away.
  void withdraw(const QStringList &sentences);

  /// Says it of what the user did last, behind what constraints said of it.
  void sayFurther(const QStringList &sentences);

  /// Drops what no act of the session brought about: it was about the job before, as a rule.
  void forgetOthers();

 private:
  struct Kept {
    NoticeBar::Kind kind;
    QStringList sentences;
    /// The act that it is about; 0: none.
    int step;
    /// Empty: nothing is to be tried.
    Again again = {};
  };

  void remove(const QStringList &sentences);
  void collect(const QStringList &sentences);
  void update();
  void add(const Kept &notice);
  void dropForgotten();
  bool stands(const Kept &notice) const;
  QList<int> standing() const;
  void showNewest(bool isNew);
  void show(int place, bool isNew);
  void turn(int places);
  void dismiss();
  void undo();
  void tryAgain();
  QStringList takenBackWith(const Kept &notice) const;

  NoticeBar &m_bar;
  /// Null: none yet.
  PrintSession *m_session = nullptr;
  /// Oldest first.
  QList<Kept> m_kept;
  /// The one on show; below zero: none.
  int m_shown = -1;
  /// Of the action that still runs.
  QStringList m_collected;
  /// The newest act that is known here, and whether it is the action that ended last.
  int m_lastStep = 0;
  int m_stepOfLastAction = 0;
};

}  // namespace orvek
