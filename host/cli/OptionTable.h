// SPDX-License-Identifier: Apache-2.0
// Each option of orvek-print: its names, what it takes, what it does to the command line, its help.
#pragma once

#include <QList>
#include <QString>

#include "host/cli/CommandLine.h"

namespace orvek {

/// One option.
struct OptionRow {
  char shortName;         ///< 0: none
  const char *longName;   ///< null: none
  const char *valueName;  ///< null: takes no value
  const char *help;
  Status (*apply)(CommandLine &line,
                  const QString &value);  ///< the failure's `what` is filled in later
};

/// All options, in the order in which the help shows them.
const QList<OptionRow> &optionTable();

}  // namespace orvek
