// SPDX-License-Identifier: Apache-2.0
// The preview as JSON, for those who script the dialog.
#pragma once

#include <QJsonObject>
#include <QStringList>

namespace orvek {

class PrintSession;

/// Every printed side of the job on these documents, in the order of printing: the sheets of each
/// document follow those of the one before. Reads the documents, and blocks until that is done. A
/// document that has no pages to look at has no sheets.
QJsonObject inspectPreview(PrintSession &session, const QStringList &documents);

}  // namespace orvek
