// SPDX-License-Identifier: Apache-2.0
// The options of a PPD that a page shows, by group: a list read once, and the questions asked about
// it. Reads PPD and marks only.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "host/ppd/Marks.h"
#include "host/printers/SettingOffer.h"

namespace orvek {

/// One option of the printer with its choices. Plain data.
struct OptionEntry {
  QString keyword;
  /// For people.
  QString text;
  /// The queue's or user's choice, else the PPD's default.
  QString standard;
};

/// Options under one title. Plain data.
struct OptionGroup {
  QString text;
  QList<OptionEntry> options;
};

/// Every option but those left out (keywords, without regard to case), in the PPD's groups and
/// order; groups without options are dropped.
QList<OptionGroup> optionGroups(const PrinterDescription &printer, const QStringList &leftOut,
                                const QList<OptionChoice> &queueOptions);

/// The choices of an option for people. A custom choice ends in "…", since it asks for values; one
/// that asks for none, or for a paper size, is left out.
QList<SettingChoice> choicesOf(const PrinterDescription &printer, const QString &option);

/// True where the mark is not the entry's standard.
bool isChanged(const Marks &marks, const OptionEntry &entry);

/// What a search looks in: text, keyword and choices of the option, a line each.
QString searchText(const PrinterDescription &printer, const OptionEntry &entry);

}  // namespace orvek
