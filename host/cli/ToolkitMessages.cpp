// SPDX-License-Identifier: Apache-2.0
// A message handler for Qt.

#include "host/cli/ToolkitMessages.h"

#include <QString>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

#include "host/cli/Console.h"
#include "platform/system/OneLine.h"

namespace orvek {
namespace {

// Without a login session there is no folder for sockets, and Qt says so at every start. Nothing
// here needs one. Of a file that can't be opened our own failure tells, in one line.
constexpr std::array<QLatin1String, 2> unwanted{QLatin1String("QStandardPaths: "),
                                                QLatin1String("QFSFileEngine::open: ")};

bool isUnwanted(const QString &message) {
  return std::any_of(unwanted.begin(), unwanted.end(),
                     [&](QLatin1String beginning) { return message.startsWith(beginning); });
}

// What the toolkit can't go on after is what the machine lacks: a part of it, memory, descriptors.
// The toolkit would end the program with a signal. Nothing of it can be relied on any more.
[[noreturn]] void endWith(const QString &message) {
  std::_Exit(report({FailureKind::Io, QStringLiteral("window toolkit"), message.simplified()}));
}

void writeMessage(QtMsgType type, const QMessageLogContext &context, const QString &message) {
  if (isUnwanted(message)) return;
  if (type == QtFatalMsg) endWith(message);
  const std::string line = oneLine(qFormatLogMessage(type, context, message).toStdString());
  std::fprintf(stderr, "%s\n", line.c_str());
}

}  // namespace

void shapeToolkitMessages() {
  qInstallMessageHandler(writeMessage);
  if (qEnvironmentVariableIsSet("QT_MESSAGE_PATTERN")) return;
  qSetMessagePattern(
      QStringLiteral("%{time yyyy-MM-dd HH:mm:ss.zzz} %{appname}[%{pid}] Qt: %{message}"));
}

}  // namespace orvek
