// SPDX-License-Identifier: Apache-2.0
// Walks and changes libcups' list of marks.

#include "host/ppd/MarkedChoices.h"

#include <QSet>
#include <algorithm>
#include <iterator>

#include "host/ppd/CustomChoice.h"
#include "host/ppd/Keyword.h"

namespace orvek {

QList<ppd_choice_t *> choicesIn(cups_array_t *marked) {
  QList<ppd_choice_t *> choices;
  choices.reserve(cupsArrayCount(marked));
  for (void *entry = cupsArrayFirst(marked); entry != nullptr; entry = cupsArrayNext(marked)) {
    choices.append(static_cast<ppd_choice_t *>(entry));
  }
  return choices;
}

QList<ppd_choice_t *> markedChoices(const ppd_file_t *ppd) {
  return ppd == nullptr ? QList<ppd_choice_t *>() : choicesIn(ppd->marked);
}

QList<ppd_choice_t *> without(const QList<ppd_choice_t *> &choices,
                              const QList<ppd_choice_t *> &others) {
  const QSet<ppd_choice_t *> left(others.begin(), others.end());
  QList<ppd_choice_t *> rest;
  std::copy_if(choices.begin(), choices.end(), std::back_inserter(rest),
               [&](ppd_choice_t *choice) { return !left.contains(choice); });
  return rest;
}

QList<ppd_choice_t *> inOrder(QList<ppd_choice_t *> choices) {
  std::stable_sort(choices.begin(), choices.end(),
                   [](const ppd_choice_t *one, const ppd_choice_t *other) {
                     return qstricmp(one->option->keyword, other->option->keyword) < 0;
                   });
  return choices;
}

QString optionOf(const ppd_choice_t *choice) {
  return QString::fromUtf8(choice->option->keyword);
}

bool isCustom(const ppd_choice_t *choice) {
  return qstrcmp(choice->choice, CustomChoice::keyword.data()) == 0;
}

void takeMark(ppd_file_t *ppd, ppd_choice_t *choice) {
  choice->marked = 0;
  cupsArrayRemove(ppd->marked, choice);
}

bool isMarkedAlone(ppd_option_t *option) {
  const bool isOneOfSeveral =
      isAnyOf(option->keyword, {"PageSize", "PageRegion", "InputSlot", "ManualFeed"}) ||
      qstrnicmp(option->keyword, "AP_", qstrlen("AP_")) == 0;
  return !isOneOfSeveral && option->ui != PPD_UI_PICKMANY &&
         ppdFindChoice(option, CustomChoice::keyword.data()) == nullptr;
}

void moveMark(ppd_file_t *ppd, ppd_choice_t *from, ppd_choice_t *choice) {
  if (from != nullptr) takeMark(ppd, from);
  choice->marked = 1;
  cupsArrayAdd(ppd->marked, choice);
}

}  // namespace orvek
