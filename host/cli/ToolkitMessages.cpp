// SPDX-License-Identifier: Apache-2.0
// A message handler for Qt.

#include "host/cli/ToolkitMessages.h"

#include <QString>

namespace orvek {

void shapeToolkitMessages() {
  if (qEnvironmentVariableIsSet("QT_MESSAGE_PATTERN")) return;
  qSetMessagePattern(
      QStringLiteral("%{time yyyy-MM-dd HH:mm:ss.zzz} %{appname}[%{pid}] Qt: %{message}"));
}

}  // namespace orvek
