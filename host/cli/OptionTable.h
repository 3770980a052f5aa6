// SPDX-License-Identifier: Apache-2.0
// Each option of orvek-print: its names, what it takes, what it does to the command line, its help.
#pragma once

#include <QList>
#include <QString>

#include "host/cli/CommandLine.h"

namespace orvek {

/// One option. Plain data.
struct OptionRow {
  /// 0: none.
  char shortName;
  /// Null: none.
  const char *longName;
  /// Null: takes no value.
  const char *valueName;
  const char *help;
  /// The failure's `what` is filled in later.
  Status (*apply)(CommandLine &line, const QString &value);
};

/// All options, in the order in which the help shows them.
const QList<OptionRow> &optionTable();

}  // namespace orvek
