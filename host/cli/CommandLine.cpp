// SPDX-License-Identifier: Apache-2.0
// Walks a command line with getopt_long over the table of options.

#include "host/cli/CommandLine.h"

#include <getopt.h>

#include <vector>

#include "host/cli/OptionTable.h"

namespace orvek {
namespace {

// getopt's values for options without a letter; above every letter.
constexpr int firstLongValue = 256;

/// What getopt wants to know about the table.
struct GetoptTables {
  /// A leading colon: tell a missing value from an unknown option.
  QByteArray letters = ":";
  std::vector<option> names;
};

GetoptTables getoptTables() {
  GetoptTables tables;
  const QList<OptionRow> &rows = optionTable();
  for (int i = 0; i < rows.size(); ++i) {
    const OptionRow &row = rows[i];
    const bool takesValue = row.valueName != nullptr;
    if (row.shortName != 0) {
      tables.letters += QByteArray(1, row.shortName) + (takesValue ? ":" : "");
    }
    if (row.longName == nullptr) continue;
    tables.names.push_back(
        {row.longName, takesValue ? required_argument : no_argument, nullptr, firstLongValue + i});
  }
  tables.names.push_back({nullptr, 0, nullptr, 0});
  return tables;
}

const OptionRow *rowFor(int value) {
  const QList<OptionRow> &rows = optionTable();
  if (value >= firstLongValue) return &rows[value - firstLongValue];
  for (const OptionRow &row : rows) {
    if (row.shortName == value) return &row;
  }
  return nullptr;
}

QString nameOf(const OptionRow &row) {
  if (row.longName != nullptr) return QStringLiteral("--") + QLatin1String(row.longName);
  return QLatin1Char('-') + QString(QLatin1Char(row.shortName));
}

Failure usage(const QString &what, const QString &why) {
  return {FailureKind::Usage, what, why};
}

// What getopt leaves behind about a word it could not use.
Failure unusable(int result, const QString &word) {
  const OptionRow *row = optopt == 0 ? nullptr : rowFor(optopt);
  if (row == nullptr) {
    const QString name = optopt == 0 ? word : QLatin1Char('-') + QString(QLatin1Char(char(optopt)));
    return usage(name, QStringLiteral("unknown option (see --help)"));
  }
  return usage(nameOf(*row),
               result == ':'
                   ? QStringLiteral("needs a value: %1").arg(QLatin1String(row->valueName))
                   : QStringLiteral("takes no value"));
}

Status applyRow(const OptionRow &row, CommandLine *line) {
  const Status applied = row.apply(*line, QString::fromLocal8Bit(optarg));
  if (applied || !applied.failure().what.isEmpty()) return applied;
  return usage(nameOf(row), applied.failure().why);
}

Status walk(int count, char **words, CommandLine *line) {
  const GetoptTables tables = getoptTables();
  optind = 0;  // begin anew, also after an earlier walk
  opterr = 0;
  for (;;) {
    optopt = 0;
    const int result =
        getopt_long(count, words, tables.letters.constData(), tables.names.data(), nullptr);
    if (result == -1) break;
    if (result == '?' || result == ':') {
      return unusable(result, QString::fromLocal8Bit(words[optind - 1]));
    }
    if (Status applied = applyRow(*rowFor(result), line); !applied) return applied;
  }
  for (int i = optind; i < count; ++i) line->files << QString::fromLocal8Bit(words[i]);
  return {};
}

}  // namespace

Result<CommandLine> parseCommandLine(const QByteArrayList &words) {
  QByteArrayList copies{QByteArrayLiteral("orvek-print")};
  copies += words;
  std::vector<char *> pointers;
  for (QByteArray &word : copies) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  CommandLine line;
  if (const Status walked = walk(int(copies.size()), pointers.data(), &line); !walked) {
    return walked.failure();
  }
  return line;
}

}  // namespace orvek
