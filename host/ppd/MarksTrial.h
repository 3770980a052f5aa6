// SPDX-License-Identifier: Apache-2.0
// The guard of whatever marks something only to see what comes of it.
#pragma once

#include "host/ppd/Marks.h"

namespace orvek {

/// All that is marked while it lives is only tried: when it goes, the marks are as they were when
/// it came, unless they were to be kept. Borrows the marks, which must outlive it; trials may
/// stand within each other. Nothing fails. On the thread of the marks.
class MarksTrial {
 public:
  explicit MarksTrial(Marks &marks) : m_marks(marks), m_before(marks.snapshot()) {}
  ~MarksTrial() {
    if (!m_isKept) m_marks.restore(m_before);
  }
  MarksTrial(const MarksTrial &) = delete;
  MarksTrial &operator=(const MarksTrial &) = delete;

  /// Back to where it began, to try something else.
  void startAgain() { m_marks.restore(m_before); }

  /// What was marked stays.
  void keep() { m_isKept = true; }

 private:
  Marks &m_marks;
  MarksSnapshot m_before;
  bool m_isKept = false;
};

}  // namespace orvek
