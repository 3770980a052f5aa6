// SPDX-License-Identifier: Apache-2.0
// A picture of the dialog in a file.
#pragma once

#include <QString>

#include "host/session/PrintSession.h"

namespace orvek {

/// Writes the dialog as a PNG; the file is replaced as a whole or left as it was.
Status writeScreenshot(const PrintSession &session, const QString &path);

}  // namespace orvek
