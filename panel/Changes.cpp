// SPDX-License-Identifier: Apache-2.0
// What follows a pick, and what the PPD must be for the panel to offer anything. Picks are
// announced and remembered; marking, constraints and the ticket are the host's.

#include <QCheckBox>
#include <QComboBox>

#include "Common/Utilities.h"
#include "panel/Keywords.h"
#include "panel/OrvekFinishing.h"
#include "platform/ui/Controls.h"
#include "platform/ui/PopUps.h"

using namespace orvek;

namespace {

// No record (nothing selected) keeps the selection that was.
void keepIfPresent(const PDEChoice *record, const PDEChoice *&selection) {
  if (record != nullptr) selection = record;
}

void disableItems(QComboBox *popUp, std::initializer_list<int> indexes) {
  for (const int index : indexes) setItemEnabled(popUp, index, false);
}

}  // namespace

void OrvekFinishing::changeStaplingOption(QWidget *) {
  keepIfPresent(selectionForPopUp_withKey(staplingPopup, staplingKeyword), staplingSelection);
  if (foldingChoices != nullptr && indexOfSelectedItem(staplingPopup) > 0) {
    selectItemAtIndex(foldingPopup, 0);
    changeFoldingOption(foldingPopup);
  }
  updateStaplingImage();
}

void OrvekFinishing::changeFoldingOption(QWidget *) {
  keepIfPresent(selectionForPopUp_withKey(foldingPopup, foldingKeyword), foldingSelection);
  if (staplingChoices != nullptr && indexOfSelectedItem(foldingPopup) > 0) {
    selectItemAtIndex(staplingPopup, 0);
    changeStaplingOption(staplingPopup);
  }
  updateStaplingImage();
}

void OrvekFinishing::changePunchOption(QWidget *) {
  keepIfPresent(selectionForPopUp_withKey(punchPopup, punchKeyword), punchSelection);
}

void OrvekFinishing::changePaperDestOption(QWidget *) {
  keepIfPresent(selectionForPopUp_withKey(paperDestPopup, paperDestKeyword), paperDestSelection);
}

void OrvekFinishing::offSetChange(QWidget *sender) {
  const std::size_t index = state(sender) == stateOn ? 1 : 0;
  const PDEChoice *record = recordAt(offsetCollatedSetChoices.get(), index);
  if (record == nullptr) return;  // an option without that choice: nothing to announce
  offsetCollatedSetSelection = record;
  // Announced whatever useConstraintHandling says: the box does not go the pop-ups' way.
  willChangePPDOption(pdePluginCallbackObject.get(), QLatin1String(offsetKeyword),
                      record->ppdTitle());
}

void OrvekFinishing::validateHolePunchMenuItems() {
  if (punchChoices == nullptr) return;
  const ppd_choice_t *unit = ppdFindMarkedChoice(ppd, punchUnitKeyword);
  if (unit == nullptr) return;
  const int count = static_cast<int>(punchChoices->size());
  setAutoenablesItems(punchPopup, false);
  for (int i = 0; i < count; ++i) setItemEnabled(punchPopup, i, true);
  // Fixed places: our PPDs list no punching, metric, US, metric.
  if (qstricmp(unit->choice, "None") == 0) {
    for (int i = 1; i < count; ++i) setItemEnabled(punchPopup, i, false);
  } else if (qstricmp(unit->choice, "US_Punch") == 0) {
    disableItems(punchPopup, {1, 3});
  } else if (qstricmp(unit->choice, "Metric_Punch") == 0) {
    disableItems(punchPopup, {2});
  }
}

OSStatus OrvekFinishing::checkPDEContextCUPSForStaplingBooklet() {
  const bool stapling = ppdFindAttr(ppd, staplingKeyword, nullptr) != nullptr;
  return stapling || hasBooklet ? noErr : kPMInvalidPDEContext;
}

OSStatus OrvekFinishing::checkFinishingPDEContext() {
  if (MyCheckPDEContextCUPS(ppd) != noErr) return kPMInvalidPDEContext;
  // Asked, but not a condition: a printer of ours that only offsets its sets has the panel too.
  static_cast<void>(checkPDEContextCUPSForStaplingBooklet());
  return noErr;
}
