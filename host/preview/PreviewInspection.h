// SPDX-License-Identifier: Apache-2.0
// The preview as JSON, for those who script the dialog.
#pragma once

#include <QJsonObject>
#include <QStringList>
#include <optional>

#include "platform/system/Result.h"

namespace orvek {

class PrintSession;

/// Plain data.
struct InspectedPreview {
  /// Every printed side, in the order of printing: the sheets of each document follow those of the
  /// one before. A document that has no pages to look at has no sheets.
  QJsonObject json;
  /// Why the first of the documents that could not be read could not.
  std::optional<Failure> unread;
};

/// What the job makes of these documents. Reads them, and blocks until that is done.
InspectedPreview inspectPreview(PrintSession &session, const QStringList &documents);

}  // namespace orvek
