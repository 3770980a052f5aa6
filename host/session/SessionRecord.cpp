// SPDX-License-Identifier: Apache-2.0
// Writes down.

#include "host/session/SessionRecord.h"

namespace orvek {

SessionRecord::SessionRecord()
    : m_subscription([this](const QString &line) {
        if (!m_isPaused) m_log << line;
      }) {}

void SessionRecord::noteAnnouncement(const QString &option, const QString &choice) {
  m_announced.append({option, choice.isEmpty() ? QString() : choice});
}

}  // namespace orvek
