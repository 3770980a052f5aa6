// SPDX-License-Identifier: Apache-2.0
// The PPD of a queue, fetched once and kept in the user's cache folder until the server has a newer
// one.
#pragma once

#include "host/printers/ServerTalk.h"

namespace orvek {

/// Where PPD files of queues are kept. Holds no file open and may be used on any thread; failures
/// name the queue or the file.
class QueuePPD {
 public:
  explicit QueuePPD(const QString &cacheFolder = standardFolder());

  /// $XDG_CACHE_HOME/orvek-print, or what stands for it.
  static QString standardFolder();

  /// The path of `queue`'s PPD file: asks the server whether it has another than the one kept, and
  /// fetches that. A null path where the queue has none (a driverless or raw queue). A cache that
  /// can't be written is no obstacle (KeptPPD.h). Fails where the server does not answer or has no
  /// such queue.
  Result<QString> fetch(const ServerAccess &access, const QString &queue) const;

  /// The same over an open connection.
  Result<QString> fetch(ServerTalk &talk, const QString &queue) const;

 private:
  QString m_folder;
};

}  // namespace orvek
