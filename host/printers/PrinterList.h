// SPDX-License-Identifier: Apache-2.0
// Which printers there are, and which is the default. libcups is asked for all of it, so
// environment, saved options and server count exactly as they do for every other program.
#pragma once

#include <QList>

#include "host/printers/Queue.h"
#include "host/printers/ServerTalk.h"

namespace orvek {

/// Every destination of the server in force with its instances, by name. An empty list is no
/// failure. Fails where the server does not answer or refuses.
Result<QList<Queue>> listPrinters(const ServerAccess &access);

/// One destination, with the options saved for it. `destination` is "NAME" or "NAME/INSTANCE";
/// empty, it is the default: LPDEST, PRINTER (unless that is "lp"), the user's saved default, the
/// machine's, the server's. Fails where there is none, and says which variable names one that does
/// not exist.
Result<Queue> findPrinter(const ServerAccess &access, const QString &destination);

/// The same over a connection that is open already.
Result<Queue> findPrinter(ServerTalk &talk, const QString &destination);

/// Has it looked for while this program has other things to do. Waits for nothing, and tells of no
/// failure: whoever asks for the same destination with the same access within a moment is told.
void findPrinterAhead(const ServerAccess &access, const QString &destination);

}  // namespace orvek
