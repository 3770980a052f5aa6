// SPDX-License-Identifier: Apache-2.0
// Words for those who listen to the window instead of looking at it.
#pragma once

class QString;
class QWidget;

namespace orvek {

/// Has screen readers say it at once, as something that happened where the widget is, which shows
/// it or something else. Without a screen reader nothing happens. On the interface's thread;
/// nothing fails.
void announce(QWidget &where, const QString &words);

}  // namespace orvek
