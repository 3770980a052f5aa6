// SPDX-License-Identifier: Apache-2.0
// The options of orvek-print.

#include "host/cli/OptionTable.h"

#include <cups/cups.h>

#include <QRegularExpression>

namespace orvek {
namespace {

constexpr int highestPriority = 100;

Failure wrong(const QString &why) {
  return {FailureKind::Usage, QString(), why};
}

// Options that only keep their value.
template <auto Member>
Status keepText(CommandLine &line, const QString &value) {
  line.*Member = value;
  return {};
}

template <auto Member>
Status setFlag(CommandLine &line, const QString &) {
  line.*Member = true;
  return {};
}

Status setCopies(CommandLine &line, const QString &value) {
  bool isNumber = false;
  line.copies = value.toInt(&isNumber);
  if (isNumber && line.copies > 0) return {};
  return wrong(
      QStringLiteral("the number of copies must be a positive integer, not \"%1\"").arg(value));
}

Status setPriority(CommandLine &line, const QString &value) {
  bool isNumber = false;
  const int priority = value.toInt(&isNumber);
  line.priority = priority;
  if (isNumber && priority > 0 && priority <= highestPriority) return {};
  return wrong(
      QStringLiteral("the priority must be an integer from 1 to 100, not \"%1\"").arg(value));
}

Status setPageRanges(CommandLine &line, const QString &value) {
  static const QRegularExpression ranges(
      QStringLiteral("\\A(\\d+-?\\d*|-\\d+)(,(\\d+-?\\d*|-\\d+))*\\z"));
  line.pageRanges = value;
  if (ranges.match(value).hasMatch()) return {};
  return wrong(QStringLiteral("page ranges look like 1-4,7,9-, not \"%1\"").arg(value));
}

Status addOptions(CommandLine &line, const QString &value) {
  cups_option_t *options = nullptr;
  const int count = cupsParseOptions(value.toUtf8().constData(), 0, &options);
  for (int i = 0; i < count; ++i) {
    line.options.append({QString::fromUtf8(options[i].name), QString::fromUtf8(options[i].value)});
  }
  cupsFreeOptions(count, options);
  return count > 0 ? Status() : wrong(QStringLiteral("needs NAME or NAME=VALUE"));
}

Status addMark(CommandLine &line, const QString &value) {
  const qsizetype equals = value.indexOf(QLatin1Char('='));
  if (equals <= 0 || equals + 1 == value.size()) {
    return wrong(QStringLiteral("needs OPTION=CHOICE, not \"%1\"").arg(value));
  }
  line.marks.append({value.left(equals), value.mid(equals + 1)});
  return {};
}

Status addAction(CommandLine &line, const QString &value) {
  Result<Action> action = parseAction(value);
  if (!action) return action.failure();
  line.actions.append(action.take());
  return {};
}

Status addPlugin(CommandLine &line, const QString &value) {
  line.plugins << value;
  return {};
}

Status refuseResize(CommandLine &line, const QString &) {
  line.resize = false;
  return {};
}

QList<OptionRow> queueOptions() {
  return {
      {'d', nullptr, "DEST[/INSTANCE]", "print on this queue", keepText<&CommandLine::destination>},
      {'n', nullptr, "COPIES", "print so many copies", setCopies},
      {'o', nullptr, "NAME[=VALUE]", "set an option of the printer or the job (repeats)",
       addOptions},
      {'P', nullptr, "PAGE-RANGES", "print these pages only", setPageRanges},
      {'t', nullptr, "TITLE", "name the job", keepText<&CommandLine::title>},
      {'h', nullptr, "HOST[:PORT]", "use this print server", keepText<&CommandLine::server>},
      {'U', nullptr, "USER", "print as this user", keepText<&CommandLine::user>},
      {'q', nullptr, "PRIORITY", "the job's priority, 1 to 100", setPriority},
      {'s', nullptr, nullptr, "do not say the job's number", setFlag<&CommandLine::silent>},
  };
}

QList<OptionRow> sessionOptions() {
  return {
      {0, "ppd", "FILE", "use this printer description, without a print server",
       keepText<&CommandLine::ppd>},
      {0, "plugin", "BUNDLE", "load this plug-in bundle (repeats)", addPlugin},
      {0, "ticket", "FILE", "begin with this ticket", keepText<&CommandLine::ticket>},
      {0, "preset", "NAME", "begin with this saved preset", keepText<&CommandLine::preset>},
      {0, "mark", "OPTION=CHOICE", "mark a choice in the PPD first (repeats)", addMark},
      {0, "no-resize", nullptr, "do not let panels change their size", refuseResize},
  };
}

QList<OptionRow> runOptions() {
  return {
      {0, "headless", nullptr, "show no window", setFlag<&CommandLine::headless>},
      {0, "do", "ACTION", "do this as the user or the host would (repeats)", addAction},
      {0, "inspect", nullptr, "print the state as JSON", setFlag<&CommandLine::inspect>},
      {0, "summary", nullptr, "print the summary", setFlag<&CommandLine::summary>},
      {0, "screenshot", "FILE", "write the dialog as a PNG", keepText<&CommandLine::screenshot>},
      {0, "ticket-out", "FILE", "write the ticket as JSON", keepText<&CommandLine::ticketOut>},
      {0, "output", "FILE", "print into FILE, without a print server",
       keepText<&CommandLine::output>},
      {0, "print", nullptr, "with --headless: submit the job (with --output: into that file)",
       setFlag<&CommandLine::print>},
      {0, "list-printers", nullptr, "list the printers", setFlag<&CommandLine::listPrinters>},
      {0, "list-presets", nullptr, "list the saved presets", setFlag<&CommandLine::listPresets>},
      {0, "save-preset", "NAME", "save the settings as a preset",
       keepText<&CommandLine::savePreset>},
      {0, "delete-preset", "NAME", "delete a preset", keepText<&CommandLine::deletePreset>},
      {0, "help", nullptr, "show this help", setFlag<&CommandLine::help>},
      {0, "version", nullptr, "show the version", setFlag<&CommandLine::version>},
  };
}

}  // namespace

const QList<OptionRow> &optionTable() {
  static const QList<OptionRow> table = queueOptions() + sessionOptions() + runOptions();
  return table;
}

}  // namespace orvek
