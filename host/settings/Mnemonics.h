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
/// of the window has: where it can the first letter of a word, else any letter of the text. A text
/// in another script gets one in brackets behind it. Texts keep a letter that they came with,
/// unless another would be left without; so do tabs, and what got its letter by an earlier call.
/// Only where there are more texts than letters some have none. Safe to call again.
void assignMnemonics(QWidget *page);

/// Gives each tab of the window a letter that nothing else in it has, shown or not; but for what is
/// on `page` (null: none), which is still to get letters of its own. A tab that has one keeps it.
void assignTabMnemonics(QWidget *window, const QWidget *page);

}  // namespace orvek
