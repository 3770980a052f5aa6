// SPDX-License-Identifier: Apache-2.0
// Names of ours for what PPD files and print servers call alike everywhere: a user must not have to
// read keywords. Pure functions, in the language of the thread's application.
#pragma once

#include <QString>

namespace orvek {

/// An option's name by its keyword in a PPD ("Duplex") or its attribute in IPP ("sides"), in any
/// case: "Two-sided". Null for an option that is no standard one.
QString standardOptionName(const QString &option);

/// The name of a standard option's choice: "Long edge" for "DuplexNoTumble" and for
/// "two-sided-long-edge", "Tray 2" for "Tray2", "US Letter" for "Letter". Null where either is no
/// standard one. Several keywords may have one name.
QString standardChoiceName(const QString &option, const QString &choice);

/// "On" and "Off" for "True" and "False"; null for all else.
QString switchName(const QString &choice);

/// The name of one of the groups that PPD files have by tradition; null for any other.
QString standardGroupName(const QString &group);

/// Whether these names are in another language than English.
bool standardNamesAreTranslated();

/// The name of a paper by its keyword in a PPD or its self-describing name; null where it has none.
/// One that tells its size alone gets that for a name: "102 × 152 mm" for "w288h432".
QString standardPaperName(const QString &keyword);

}  // namespace orvek
