// SPDX-License-Identifier: Apache-2.0
// Where a fetched printer description is put: into the cache, or elsewhere where the cache is full.
#pragma once

#include <QByteArray>
#include <QString>

#include "platform/system/Result.h"

namespace orvek {

/// Keeps `ppd` as the file `path`, dated `date` (seconds since 1970), and gives the path. Where no
/// file can be written there, says why in the log and gives a path at which this process and its
/// children read the same bytes until it ends: who wants to print must not need room for a cache.
/// Fails where there is no memory for that either. May be called on any thread.
Result<QString> keepPPD(const QByteArray &ppd, qint64 date, const QString &path);

}  // namespace orvek
