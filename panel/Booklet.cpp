// SPDX-License-Identifier: Apache-2.0
// The booklet section: its paper sizes and its handlers. Each handler writes its ticket key at
// once.

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>

#include "panel/Keywords.h"
#include "panel/OptionTitle.h"
#include "panel/OrvekFinishing.h"
#include "platform/ui/Controls.h"
#include "platform/ui/Frames.h"
#include "platform/ui/PopUps.h"

using namespace orvek;

namespace {

// Room that a closed booklet section leaves under the basic view, in points.
constexpr qreal closedBookletRoom = 120;

TextEncoding encodingOfPPD(const ppd_file_t *ppd) {
  if (qstrcmp(ppd->lang_encoding, "UTF-8") == 0) return TextEncoding::UTF8;
  if (qstrcmp(ppd->lang_encoding, "JIS83-RKSJ") == 0) return TextEncoding::ShiftJIS;
  return TextEncoding::ISOLatin1;
}

// An empty field or a lone "-" is a number about to be typed; an absent field reads as an empty
// one.
bool isUnfinished(const QString &text) {
  return text.isEmpty() || text == QLatin1String("-");
}

}  // namespace

void OrvekFinishing::fillTargetPaperSizePopup() {
  paperSizeOption = ppdFindOption(ppd, paperSizeKeyword);
  paperSizeChoices = arrayFromPPDOption(paperSizeOption);
  if (paperSizeOption == nullptr) {
    setHidden(paperSizePopup, true);
    setHidden(paperSizeLbl, true);
    return;
  }
  setTitleWithMnemonic(paperSizeLbl,
                       CreateOptionTitle(paperSizeOption, encodingOfPPD(ppd)) + QLatin1Char(':'));
  removeAllItems(paperSizePopup);
  addItem(paperSizePopup, {localizedString(pluginBundle.get(), fitCurrentJobString)});
  // The last size is custom paper, which a booklet can't be scaled to.
  for (int i = 0; i < paperSizeOption->num_choices - 1; ++i) {
    const PDEChoice *size = recordAt(paperSizeChoices.get(), std::size_t(i));
    addItem(paperSizePopup, {userTitle(size), nullptr, ppdTitle(size)});
  }
}

void OrvekFinishing::changePaperSizeOption(QWidget *) {
  writeNumber(targetPaperSizeKey, indexOfSelectedItem(paperSizePopup));
}

void OrvekFinishing::enableBookletChange(QWidget *sender) {
  if (canResizeView) {
    if (state(sender) == stateOn) {
      showAdvanced(true);
    } else if (state(sender) == stateOff) {
      showAdvanced(false);
      setFrameSize(pdeView, {basicSize.width(), basicSize.height() + closedBookletRoom});
    }
    panelViewDidResize(pdePluginCallbackObject.get());
  }
  writeFlag(enableBookletKey, bookletChckBox);
}

void OrvekFinishing::rToLChange(QWidget *) {
  writeFlag(rightToLeftKey, rToLChckBox);
}

void OrvekFinishing::paperBorderClick(QWidget *) {
  writeFlag(pageBordersKey, pageBroderChckBox);
}

void OrvekFinishing::gutterSliderTracking(QWidget *) {
  setIntValue(gutterTxtBox, intValue(gutterSlider));
  writeNumber(gutterKey, intValue(gutterSlider));
}

void OrvekFinishing::creepSliderTracking(QWidget *) {
  setIntValue(creepTxtBox, intValue(creepSlider));
  writeNumber(creepKey, intValue(creepSlider));
}

void OrvekFinishing::controlTextDidChange(QWidget *field) {
  if (field == gutterTxtBox && !isUnfinished(stringValue(gutterTxtBox))) {
    setIntValue(gutterSlider, leadingInteger(stringValue(gutterTxtBox)));
    gutterSliderTracking(gutterSlider);
  }
  if (field == creepTxtBox && !isUnfinished(stringValue(creepTxtBox))) {
    setIntValue(creepSlider, leadingInteger(stringValue(creepTxtBox)));
    creepSliderTracking(creepSlider);
  }
}
