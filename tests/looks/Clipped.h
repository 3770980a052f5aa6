// SPDX-License-Identifier: Apache-2.0
// Finds texts of a window that don't fit where they stand, and controls that stand on each other.
#pragma once

#include <QStringList>

class QWidget;

namespace orvek::test {

/// One line for each control of the window that is shown now and cuts its text off, or covers
/// another one's. What has scrolled out of sight covers nothing.
QStringList clippedTexts(const QWidget &window);

}  // namespace orvek::test
