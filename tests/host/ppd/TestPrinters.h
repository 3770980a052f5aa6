// SPDX-License-Identifier: Apache-2.0
// The PPD files that tests of the host share.
#pragma once

#include <QString>
#include <memory>

#include "host/ppd/PrinterDescription.h"

namespace orvek::test {

/// Path of a PPD of tests/host/ppd/files.
inline QString testPpd(const QString &name) {
  return QStringLiteral(ORVEK_SOURCE_DIR "/tests/host/ppd/files/") + name;
}

/// The printer that it describes; null where the file is no PPD.
inline std::shared_ptr<PrinterDescription> openTestPpd(const QString &name) {
  return PrinterDescription::open(testPpd(name)).take();
}

}  // namespace orvek::test
