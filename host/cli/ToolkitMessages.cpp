// SPDX-License-Identifier: Apache-2.0
// A message handler for Qt.

#include "host/cli/ToolkitMessages.h"

#include <QString>
#include <cstdio>
#include <cstdlib>

#include "platform/system/OneLine.h"

namespace orvek {
namespace {

// Without a login session there is no folder for sockets, and Qt says so at every start. Nothing
// here needs one.
constexpr QLatin1String runtimeFolderMessage{"QStandardPaths: "};

void writeMessage(QtMsgType type, const QMessageLogContext &context, const QString &message) {
  if (message.startsWith(runtimeFolderMessage)) return;
  const std::string line = oneLine(qFormatLogMessage(type, context, message).toStdString());
  std::fprintf(stderr, "%s\n", line.c_str());
  if (type == QtFatalMsg) std::abort();
}

}  // namespace

void shapeToolkitMessages() {
  qInstallMessageHandler(writeMessage);
  if (qEnvironmentVariableIsSet("QT_MESSAGE_PATTERN")) return;
  qSetMessagePattern(
      QStringLiteral("%{time yyyy-MM-dd HH:mm:ss.zzz} %{appname}[%{pid}] Qt: %{message}"));
}

}  // namespace orvek
