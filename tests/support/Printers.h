// SPDX-License-Identifier: Apache-2.0
// How GoogleTest shows Qt's values when an expectation fails.
#pragma once

#include <QDebug>
#include <QRectF>
#include <QString>
#include <ostream>

// Found by argument-dependent look-up only in the values' own namespace.
inline void PrintTo(const QString &text, std::ostream *stream) {
  *stream << (text.isNull() ? "(null)" : '"' + text.toStdString() + '"');
}

inline void PrintTo(const QRectF &rectangle, std::ostream *stream) {
  *stream << '[' << rectangle.x() << ' ' << rectangle.y() << ' ' << rectangle.width() << ' '
          << rectangle.height() << ']';
}
