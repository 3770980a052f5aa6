// SPDX-License-Identifier: Apache-2.0
// Command lines, their words with a zero byte between two: there is a line whose values are what
// they may be, and which is the same when it is said again, or there is one reason why not.

#include "fuzz/Require.h"
#include "host/cli/CommandLine.h"

namespace {

using namespace orvek;
using fuzz::require;
using fuzz::requireReason;

void add(QByteArrayList *words, const char *option, const QString &value) {
  if (!value.isNull()) *words << option << value.toLocal8Bit();
}

// What the line says in the options that only keep their value, and its files.
QByteArrayList plainWords(const CommandLine &line) {
  QByteArrayList words;
  if (line.copies > 0) add(&words, "-n", QString::number(line.copies));
  if (line.priority) add(&words, "-q", QString::number(*line.priority));
  add(&words, "-d", line.destination);
  add(&words, "-P", line.pageRanges);
  add(&words, "-t", line.title);
  add(&words, "--ppd", line.ppd);
  add(&words, "--ticket", line.ticket);
  add(&words, "--output", line.output);
  add(&words, "--save-preset", line.savePreset);
  for (const OptionChoice &mark : line.marks) {
    add(&words, "--mark", mark.option + u'=' + mark.choice);
  }
  for (const Action &action : line.actions) add(&words, "--do", action.text);
  words << "--";
  for (const QString &file : line.files) words << file.toLocal8Bit();
  return words;
}

void requireSame(const CommandLine &one, const CommandLine &other) {
  require(one.copies == other.copies && one.priority == other.priority);
  require(one.destination == other.destination && one.pageRanges == other.pageRanges);
  require(one.title == other.title && one.ppd == other.ppd && one.ticket == other.ticket);
  require(one.output == other.output && one.savePreset == other.savePreset);
  require(one.marks == other.marks && one.files == other.files);
  require(one.actions.size() == other.actions.size());
  for (qsizetype i = 0; i < one.actions.size(); ++i) {
    const Action &action = one.actions[i];
    const Action &same = other.actions[i];
    require(action.kind == same.kind && action.control == same.control &&
            action.value == same.value && action.number == same.number);
  }
}

void requireValues(const CommandLine &line) {
  require(line.copies >= 0);
  require(!line.priority || (*line.priority >= 1 && *line.priority <= 100));
  for (const OptionChoice &mark : line.marks) {
    require(!mark.option.isEmpty() && !mark.choice.isEmpty());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
  const auto line = parseCommandLine(bytes.isEmpty() ? QByteArrayList() : bytes.split('\0'));
  if (!line) {
    require(line.failure().kind == FailureKind::Usage && !line.failure().what.isEmpty());
    requireReason(line.failure());
    return 0;
  }
  requireValues(line.value());
  const auto again = parseCommandLine(plainWords(line.value()));
  require(again.ok());
  requireSame(line.value(), again.value());
  return 0;
}
