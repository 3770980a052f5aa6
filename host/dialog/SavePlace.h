// SPDX-License-Identifier: Apache-2.0
// Where a job into a file goes: asked for before it is printed, shown afterwards.
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace orvek {

/// A name for a file that holds what is printed of these documents: beside the first of them, or
/// among the user's documents where nothing can be written there; of no file that exists.
QString proposedPlace(const QStringList &documents);

/// Whether a file of this name is to hold a PDF of the sheets, and not what the printer takes: its
/// suffix says so.
bool isPdfPlace(const QString &path);

/// Asks for a file, and once whether one that exists may be replaced. Null where the user gives
/// none. Blocks until then.
QString askForPlace(QWidget *window, const QString &proposed);

/// Says that the file is there, and offers to show it among the others of its folder. Blocks until
/// the user has read it.
void showPlace(QWidget *window, const QString &path);

}  // namespace orvek
