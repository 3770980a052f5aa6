// SPDX-License-Identifier: Apache-2.0
// What the notice bar says of a session, and for how long. Knows when an Undo beside a notice would
// take back what the notice is about.
#pragma once

#include <QObject>
#include <QStringList>

#include "host/dialog/NoticeBar.h"
#include "host/ppd/Marks.h"

namespace orvek {

class PrintSession;

/// A notice stands until the next choice is made. Borrows bar and session, of which the bar must
/// outlive it. Belongs to its parent and lives on the interface's thread; nothing fails.
class NoticeKeeper final : public QObject {
  Q_OBJECT

 public:
  NoticeKeeper(NoticeBar &bar, QObject *parent);

  /// From now on says what happens in this session, and no more of the one before, which must still
  /// be there. Says nothing at first.
  void follow(PrintSession &session);

  /// Says what constraints did before anyone followed the session.
  void sayEarlier();

  /// Says it in place of what stood there, without a step back.
  void say(NoticeBar::Kind kind, const QStringList &sentences);

  /// Says it behind what constraints said in the action that still runs, or else by itself.
  void sayFurther(const QStringList &sentences);

  void fallSilent();

 private:
  void add(const QStringList &sentences);
  void update();

  NoticeBar &m_bar;
  /// Null: none yet.
  PrintSession *m_session = nullptr;
  /// As they stood when the notice was given.
  MarksSnapshot m_noticedMarks;
  /// The action that it belongs to still runs.
  bool m_isNew = false;
};

}  // namespace orvek
