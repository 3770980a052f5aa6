// SPDX-License-Identifier: Apache-2.0
// Lays the table of options out for reading.

#include "host/cli/Help.h"

#include "host/cli/OptionTable.h"

namespace orvek {
namespace {

constexpr int helpColumn = 28;

QByteArray names(const OptionRow &row) {
  QByteArray names = "--";
  if (row.shortName != 0) {
    names = QByteArray("-") + row.shortName;
  } else {
    names += row.longName;
  }
  if (row.valueName != nullptr) names += QByteArray(" ") + row.valueName;
  return names;
}

}  // namespace

QByteArray helpText() {
  QByteArray text =
      "Usage: orvek-print [OPTION]... [FILE]...\n"
      "The print dialog. Without FILE, or where FILE is -, the standard input is printed.\n\n";
  for (const OptionRow &row : optionTable()) {
    text += "  " + names(row).leftJustified(helpColumn) + ' ' + row.help + '\n';
  }
  return text +
         "\nACTION is POPUP=#INDEX, POPUP=TEXT, CHECKBOX=on|off|mixed, SLIDER=INTEGER, "
         "FIELD=TEXT,\n"
         "view, restore, save, willShow, nup=INTEGER or reopen.\n"
         "\nExit status: 0 done; 1 not printed, or a file could not be read or written; 2 wrong\n"
         "command line; 3 invalid PPD, ticket or plug-in.\n";
}

QByteArray versionText() {
  return "orvek-print " ORVEK_VERSION "\n";
}

}  // namespace orvek
