// SPDX-License-Identifier: Apache-2.0
// From interface resource to the panel of this printer: menus filled, rows hidden, gaps closed.

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>

#include "Common/DefaultSelection.h"
#include "Common/Utilities.h"
#include "panel/Keywords.h"
#include "panel/OptionTitle.h"
#include "panel/OrvekFinishing.h"
#include "platform/ui/Controls.h"
#include "platform/ui/Frames.h"
#include "platform/ui/PopUps.h"

using namespace orvek;

namespace {

constexpr qreal rowPitch = 30;  // points; the resource sets its rows this far apart

void initPopUpFromArray(QComboBox *popUp, const PDEChoiceList *choices) {
  removeAllItems(popUp);
  setAutoenablesItems(popUp, false);
  if (choices == nullptr) return;
  for (const auto &record : *choices) {
    addItem(popUp, {record->userTitle(), record.get(), record->ppdTitle()});
  }
}

// Y grows upward: moving up by the rows that went missing above closes the gap.
void shift(QWidget *control, int hiddenRows) {
  setFrame(control, frame(control).translated(0, rowPitch * hiddenRows));
}

QString defaultKeyword(const ppd_option_t *option) {
  return option == nullptr
             ? QString()
             : decodeField(option->defchoice, sizeof option->defchoice, TextEncoding::UTF8);
}

}  // namespace

namespace orvek {

QString CreateOptionTitle(const ppd_option_t *option, TextEncoding encoding) {
  if (option == nullptr) return {};
  const QString title = decodeField(option->text, sizeof option->text, encoding);
  return title.isNull() ? QString::fromLatin1(option->keyword) : title;
}

}  // namespace orvek

// What one pop-up row of the basic view is made of.
struct OrvekFinishing::Row {
  QLabel *label;
  QComboBox *popUp;
  const ppd_option_t *option;
  const PDEChoiceList *choices;
};

void OrvekFinishing::setLocalizedStringForLabel_fromPPDOption(QLabel *label,
                                                              const ppd_option_t *option) {
  if (option == nullptr) return;
  setTitleWithMnemonic(label, CreateOptionTitle(option) + QLatin1Char(':'));
}

// Equipment counts as present for the menus only where the PPD says so outright, but for the rows
// unless the PPD says otherwise: a third keyword shows a row whose menu is empty.
bool OrvekFinishing::isMarkedTrue(const char *keyword) const {
  const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, keyword);
  return marked != nullptr && qstricmp(marked->choice, "TRUE") == 0;
}

bool OrvekFinishing::isMarkedNotFalse(const char *keyword) const {
  const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, keyword);
  return marked != nullptr && qstricmp(marked->choice, "FALSE") != 0;
}

OSStatus OrvekFinishing::initializeUI() {
  const ppd_attr_t *booklet = ppdFindAttr(ppd, hasBookletAttribute, nullptr);
  if (booklet != nullptr && qstrcmp(booklet->value, trueValue.data()) == 0) hasBooklet = true;
  if (checkFinishingPDEContext() != noErr) return kPMInvalidPDEContext;

  const bool finisher = isMarkedTrue(finisherKeyword);
  const bool offsetBin = isMarkedTrue(offsetBinKeyword);
  const auto fill = [](QComboBox *popUp, const PDEChoiceList *choices, QLabel *label,
                       const ppd_option_t *option) {
    initPopUpFromArray(popUp, choices);
    setLocalizedStringForLabel_fromPPDOption(label, option);
  };
  if (finisher) {
    fill(staplingPopup, staplingChoices.get(), staplingLbl, staplingOption);
    fill(foldingPopup, foldingChoices.get(), foldingLbl, foldingOption);
    fill(punchPopup, punchChoices.get(), punchLbl, punchOption);
    validateHolePunchMenuItems();
  }
  if (finisher || offsetBin) {
    fill(paperDestPopup, paperDestChoices.get(), paperDestLbl, paperDestOption);
  }
  if (offsetCollatedSetOtion != nullptr) {
    setTitleWithMnemonic(offsetChckBox, CreateOptionTitle(offsetCollatedSetOtion));
  }
  modelNumber = getDeviceModelNumber(ppd);
  initialized = true;
  fillTargetPaperSizePopup();
  updateStaplingImage();
  return noErr;
}

// Gives how many rows are hidden once this one is settled.
int OrvekFinishing::embedPopUpRow(const Row &row, bool shown, int hiddenRows) {
  if (!shown || row.choices == nullptr) {
    setHidden(row.label, true);
    setHidden(row.popUp, true);
    return hiddenRows + 1;
  }
  shift(row.popUp, hiddenRows);
  shift(row.label, hiddenRows);
  const QString keyword = defaultKeyword(row.option);
  if (!keyword.isNull()) setDefault(keyword, *row.choices, row.popUp);
  return hiddenRows;
}

void OrvekFinishing::embedOffsetRow(int hiddenRows) {
  shift(offsetChckBox, hiddenRows);
  if (defaultKeyword(offsetCollatedSetOtion) == trueValue) setState(offsetChckBox, stateOn);
}

void OrvekFinishing::embedBookletRow(int hiddenRows) {
  shift(bookletChckBox, hiddenRows);
  const auto text = [this](QLatin1String key) { return localizedString(pluginBundle.get(), key); };
  setTitle(bookletChckBox, text(enableBookletString));
  setTitle(bookletBox, text(bookletBoxString));
  setTitle(rToLChckBox, text(rightToLeftString));
  setTitle(pageBroderChckBox, text(pageBordersString));
  setTitleWithMnemonic(gutterLbl, text(gutterString));
  setTitleWithMnemonic(creepLbl, text(creepString));
  setTitleWithMnemonic(paperSizeLbl, text(targetPaperSizeString));
  if (settings != nullptr) loadBookletControlsFromTicket();
  syncToTicket();
}

OSStatus OrvekFinishing::embedControls() {
  const bool finisher = isMarkedNotFalse(finisherKeyword);
  const bool offsetBin = isMarkedNotFalse(offsetBinKeyword);
  int hiddenRows = 0;
  hiddenRows = embedPopUpRow({staplingLbl, staplingPopup, staplingOption, staplingChoices.get()},
                             finisher, hiddenRows);
  if (hiddenRows > 0) setHidden(imageWindow, true);
  hiddenRows = embedPopUpRow({foldingLbl, foldingPopup, foldingOption, foldingChoices.get()},
                             finisher, hiddenRows);
  hiddenRows =
      embedPopUpRow({punchLbl, punchPopup, punchOption, punchChoices.get()}, finisher, hiddenRows);
  hiddenRows =
      embedPopUpRow({paperDestLbl, paperDestPopup, paperDestOption, paperDestChoices.get()},
                    finisher || offsetBin, hiddenRows);
  if (offsetCollatedSetChoices != nullptr) {
    embedOffsetRow(hiddenRows);
  } else {
    setHidden(offsetChckBox, true);
    ++hiddenRows;
  }
  if (hasBooklet) {
    embedBookletRow(hiddenRows);
  } else {
    // Its row stays as empty room: the basic view does not shrink for it.
    setHidden(bookletChckBox, true);
  }
  const qreal gap = rowPitch * hiddenRows;
  setFrame(basicView, frame(basicView).adjusted(0, gap, 0, 0));
  uiInitialized = true;
  return noErr;
}
