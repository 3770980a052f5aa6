// SPDX-License-Identifier: Apache-2.0
// What constraints did, in words, by the names that users know. Reads display texts of a printer;
// pure functions, in the language of the thread's application.
#pragma once

#include <QString>
#include <QStringList>

#include "host/ppd/Constraints.h"
#include "host/ppd/PrinterDescription.h"

namespace orvek {

/// The option's display text; its keyword where the PPD lacks it.
QString optionText(const PrinterDescription &printer, const QString &option);

/// The choice's display text, of a custom one with its values; the choice itself where the PPD
/// lacks it; null for none.
QString choiceText(const PrinterDescription &printer, const OptionChoice &choice);

/// The choice as it can stand alone in a sentence: "Saddle fold" speaks for itself; "On" and "Not
/// Installed" get the option's name before them.
QString namedChoice(const PrinterDescription &printer, const OptionChoice &choice);

/// One sentence, without a full stop, for each option that gave way ("Stapling was set to Off: it
/// can't be combined with Saddle fold"), or the one that says why the pick was undone.
QStringList wordsFor(const PrinterDescription &printer, const Resolution &resolution);

}  // namespace orvek
