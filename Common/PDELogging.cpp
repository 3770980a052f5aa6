// SPDX-License-Identifier: Apache-2.0
// Trace lines. Arguments are collected by the caller's own format and only then spent on the
// line's, so that a "%" in a description can't make it read what the caller never passed.

#include "Common/PDELogging.h"

#include <cstdarg>

#include "platform/system/Format.h"
#include "platform/system/Log.h"
#include "platform/system/PDEObject.h"

namespace {

void logTrace(const PDEObject *object, const char *tag, const char *format,
              std::va_list arguments) {
  const QString line = Format(object, tag, format);
  orvek::logLine(
      orvek::expandFormat(line.toStdString(), orvek::collectArguments(format, arguments)));
}

}  // namespace

QString Format(const PDEObject *object, const char *tag, const char *format) {
  QString line = QString::fromUtf8(tag) + QLatin1Char(' ');
  if (object != nullptr) {
    line += QLatin1String("self(") + object->description() + QLatin1String(") ");
  }
  return line + QString::fromUtf8(format);
}

void _PDEProlog(const PDEObject *object, const char *format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  logTrace(object, "BEGIN", format, arguments);
  va_end(arguments);
}

void _PDEEpilog(const PDEObject *object, const char *format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  logTrace(object, "END", format, arguments);
  va_end(arguments);
}

void _PDELog(const PDEObject *object, const char *format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  logTrace(object, "LOG", format, arguments);
  va_end(arguments);
}
