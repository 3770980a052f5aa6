// SPDX-License-Identifier: Apache-2.0
// One environment for filters and for the preview's tools.

#include "host/jobs/ToolEnvironment.h"

namespace orvek {

QProcessEnvironment toolEnvironment() {
  auto environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
  environment.insert(QStringLiteral("CUPS_SERVER"), QStringLiteral("/dev/null/no-server"));
  return environment;
}

}  // namespace orvek
