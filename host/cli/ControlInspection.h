// SPDX-License-Identifier: Apache-2.0
// One view or control as JSON.
#pragma once

#include <QJsonValue>

class QWidget;

namespace orvek {

/// Flags and frame of the view, and what its kind shows besides. Null for an absent one.
QJsonValue inspectControl(const QWidget *control);

}  // namespace orvek
