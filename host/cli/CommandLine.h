// SPDX-License-Identifier: Apache-2.0
// The command line of orvek-print as data. Reads words only; opens nothing.
#pragma once

#include <QByteArrayList>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

#include "host/cli/Action.h"
#include "host/ppd/Marks.h"
#include "platform/system/Result.h"

namespace orvek {

/// Everything a command line may say. A null text was not given. Plain data.
struct CommandLine {
  // As in lp
  /// -d DEST[/INSTANCE]
  QString destination;
  /// -n; 0: not given.
  int copies = 0;
  /// -o, in order; an option without value has "true".
  QList<OptionChoice> options;
  /// -P
  QString pageRanges;
  /// -t
  QString title;
  /// -h HOST[:PORT]
  QString server;
  /// -U
  QString user;
  /// -q, 1 to 100.
  std::optional<int> priority;
  /// -s
  bool silent = false;
  /// Documents; "-" is the standard input, which is also meant by none.
  QStringList files;

  // What the session begins with
  QString ppd;
  QStringList plugins;
  QString ticket;
  QString preset;
  QList<OptionChoice> marks;
  /// False: --no-resize.
  bool resize = true;

  // What is done with it
  bool headless = false;
  /// --do, in order
  QList<Action> actions;
  bool inspect = false;
  bool summary = false;
  QString screenshot;
  QString ticketOut;
  QString output;
  bool print = false;
  QString savePreset;
  QString deletePreset;
  bool listPrinters = false;
  bool listPresets = false;
  bool help = false;
  bool version = false;
};

/// Reads the words after the program's name. Options may be clustered and stand anywhere ("-n2",
/// "--ppd=FILE"); "--" ends them. Usage failures name the option.
Result<CommandLine> parseCommandLine(const QByteArrayList &words);

}  // namespace orvek
