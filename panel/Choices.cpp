// SPDX-License-Identifier: Apache-2.0
// The small model between PPD and pop-ups: options as lists of records, marks as selections, and a
// user's pick on its way to the host.

#include <QComboBox>

#include "panel/Keywords.h"
#include "panel/OrvekFinishing.h"
#include "platform/ui/PopUps.h"

using namespace orvek;

std::unique_ptr<PDEChoiceList> OrvekFinishing::arrayFromPPDOption(ppd_option_t *option) {
  if (option == nullptr) return nullptr;
  auto records = std::make_unique<PDEChoiceList>();
  const int count = option->num_choices;
  if (count < 1) return records;
  records->reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    records->push_back(PDEChoice::choiceWithChoice(option->choices + i));
  }
  return records;
}

std::size_t OrvekFinishing::indexOfMarkedOption_forKey(ppd_option_t *option,
                                                       const char *keyword) const {
  if (const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, keyword)) {
    return static_cast<std::size_t>(marked - option->choices);
  }
  if (const ppd_choice_t *declared = ppdFindChoice(option, option->defchoice)) {
    return static_cast<std::size_t>(declared - option->choices);
  }
  return noCurrentChoice;
}

void OrvekFinishing::updateMarkedSelections() {
  const auto update = [this](ppd_option_t *option, const char *keyword, const PDEChoiceList *list,
                             const PDEChoice *&selection) {
    if (option == nullptr) return;
    selection = recordAt(list, indexOfMarkedOption_forKey(option, keyword));
  };
  update(staplingOption, staplingKeyword, staplingChoices.get(), staplingSelection);
  update(foldingOption, foldingKeyword, foldingChoices.get(), foldingSelection);
  update(punchOption, punchKeyword, punchChoices.get(), punchSelection);
  update(paperDestOption, paperDestKeyword, paperDestChoices.get(), paperDestSelection);
}

const PDEChoice *OrvekFinishing::selectionForPopUp_withKey(QComboBox *popUp, const char *keyword) {
  const auto *record =
      dynamic_cast<const PDEChoice *>(representedObject(popUp, indexOfSelectedItem(popUp)));
  if (useConstraintHandling) {
    willChangePPDOption(pdePluginCallbackObject.get(), QLatin1String(keyword), ppdTitle(record));
  }
  return record;
}
