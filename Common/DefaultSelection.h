// SPDX-License-Identifier: Apache-2.0
// Points a pop-up at an option's default choice. A template, so that this library needs to know no
// class of choice records; the only one here that touches a control.
#pragma once

#include <QString>

#include "platform/ui/PopUps.h"

/// Selects in `popUp` the first item whose title equals the `userTitle()` of the first element of
/// `choices` whose `ppdTitle()` is exactly `defaultKeyword` (case counts; an absent keyword matches
/// nothing). Where several choices share a user title, the first item with that title is the one
/// selected. Without such an element, or with a null `popUp`, nothing changes. `choices` is any
/// range of pointer-like elements, borrowed for the call; a null element is skipped.
template <class ChoiceList>
void setDefault(const QString &defaultKeyword, const ChoiceList &choices, QComboBox *popUp) {
  for (const auto &choice : choices) {
    if (!choice) continue;
    const QString keyword = choice->ppdTitle();
    if (keyword.isNull() || defaultKeyword.isNull() || keyword != defaultKeyword) continue;
    orvek::selectItemWithTitle(popUp, choice->userTitle());
    return;
  }
}
