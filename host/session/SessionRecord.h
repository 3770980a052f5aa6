// SPDX-License-Identifier: Apache-2.0
// What a session has heard, for those who inspect it: announcements, changes of size, log lines;
// and what it said.
#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

#include "platform/system/Log.h"

namespace orvek {

/// Listens to the general log from its beginning to its end. Belongs to the interface's thread.
/// Owns its copies of what it heard; nothing fails.
class SessionRecord {
 public:
  /// An option and the choice announced for it; null where it was empty.
  using Announcement = QPair<QString, QString>;

  /// While it lives, what is logged is not the job's and is passed over. Borrows the record; as it,
  /// on the interface's thread, and nothing fails.
  class Pause {
   public:
    explicit Pause(SessionRecord &record) : m_record(record) { m_record.m_isPaused = true; }
    ~Pause() { m_record.m_isPaused = false; }
    Pause(const Pause &) = delete;
    Pause &operator=(const Pause &) = delete;

   private:
    SessionRecord &m_record;
  };

  SessionRecord();
  SessionRecord(const SessionRecord &) = delete;
  SessionRecord &operator=(const SessionRecord &) = delete;

  void noteAnnouncement(const QString &option, const QString &choice);
  void noteResize() { ++m_resizeCount; }
  void noteNotices(const QStringList &words) { m_notices << words; }

  /// Every announced choice in order.
  const QList<Announcement> &announced() const { return m_announced; }

  /// How often a panel said that its view has another size.
  int resizeCount() const { return m_resizeCount; }

  /// What constraints did so far, in words.
  const QStringList &notices() const { return m_notices; }

  /// Every line of the general log, as it was given.
  const QStringList &log() const { return m_log; }

 private:
  QList<Announcement> m_announced;
  int m_resizeCount = 0;
  QStringList m_notices;
  QStringList m_log;
  bool m_isPaused = false;
  LogSubscription m_subscription;
};

}  // namespace orvek
