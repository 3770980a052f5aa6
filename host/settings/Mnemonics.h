// SPDX-License-Identifier: Apache-2.0
// Keyboard letters for controls whose texts come from PPD files, so that nobody chose letters for
// them.
#pragma once

#include <QString>

class QWidget;

namespace orvek {

/// Text as a label shows it, without mnemonic: each "&" doubled.
QString withoutMnemonic(const QString &text);

/// Gives each label with a buddy and each button of the page a letter that no other visible control
/// of the window has: the first letter of a word where it is free, else any letter of the text,
/// else one in brackets behind it. Texts keep a letter that they came with where it is free. Safe
/// to call again.
void assignMnemonics(QWidget *page);

}  // namespace orvek
