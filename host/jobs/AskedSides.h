// SPDX-License-Identifier: Apache-2.0
// Whether a job's options leave anything of its document to be printed.
#pragma once

#include <QMap>
#include <QString>

#include "platform/system/Result.h"

namespace orvek {

/// Fails where the print system's filters would print none of the sides they make of a document
/// with so many pages (0: unknown, and then not judged), by the rules for PostScript or those for
/// everything else. They choose by "page-ranges" (RFC 8011)
/// and "page-set", which count sides: pages for most jobs, and fewer with "number-up". `path` names
/// the document in what is said.
Status checkAskedSides(const QString &path, int pages, bool isScript,
                       const QMap<QString, QString> &options);

}  // namespace orvek
