// SPDX-License-Identifier: Apache-2.0
// Tells the user's size from the window's own.

#include "host/dialog/WindowRoom.h"

#include <QLayout>
#include <QWidget>

namespace orvek {

void WindowRoom::make() {
  m_window.layout()->activate();
  const QSize least = m_window.minimumSizeHint();
  const QSize wanted = m_window.sizeHint().expandedTo(least);
  const QSize size = m_window.size();
  // The layout itself has the window grow to its minimum.
  const bool isUsersSize = m_ownSize.isValid() && size != m_ownSize &&
                           size != m_ownSize.expandedTo(m_window.minimumSize());
  const QSize next = isUsersSize ? size.expandedTo(least) : wanted;
  if (size != next) m_window.resize(next);
  if (!isUsersSize) m_ownSize = next;
}

}  // namespace orvek
