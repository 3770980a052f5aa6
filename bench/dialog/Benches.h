// SPDX-License-Identifier: Apache-2.0
// The lines of the table, one function a file, and what they share.
#pragma once

#include <QString>
#include <QStringList>

#include "tests/support/PrivateCups.h"

namespace bench {

/// A PPD file of the largest printer with `count` further options of four choices each.
QString ppdWithOptions(const QString &folder, int count);

/// A program of this build.
QString program(const char *name);

/// From start to first paint: ours and Qt's own print dialog, in their own process, once measured
/// within it from a warmed-up toolkit on, once with the process itself.
void firstPaint(orvek::test::PrivateCups &server, const QString &folder, int rounds);

/// From a pick to marks without conflicts: a session, and libcups alone.
void picks(const QString &folder);

/// A job as a whole process: a run without a window, and lp.
void jobs(orvek::test::PrivateCups &server, int rounds);

/// From process start to the window on the screen: ours and gtklp. Needs an X server.
void windows(orvek::test::PrivateCups &server, const QString &folder, int rounds);

/// The same of our window alone, with a print server that never answers and with one of three
/// hundred queues, against one of few. Needs an X server, and leaves its queues on the server.
void windowsWithoutHelp(orvek::test::PrivateCups &server, const QString &folder, int rounds);

}  // namespace bench
