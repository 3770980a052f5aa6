// SPDX-License-Identifier: Apache-2.0
// The booklet's way into the ticket and back. The controls are the only state in memory, so the
// ticket always ends up holding exactly what they show.

#include <QCheckBox>
#include <QComboBox>
#include <QSlider>

#include "panel/Keywords.h"
#include "panel/OrvekFinishing.h"
#include "platform/system/Log.h"
#include "platform/ui/Controls.h"
#include "platform/ui/PopUps.h"

using namespace orvek;

namespace {

QVariant readTicket(PMPrintSettings settings, QLatin1String key) {
  QVariant value;
  PMPrintSettingsGetValue(settings, key, &value);
  return value;
}

void readFlag(PMPrintSettings settings, QLatin1String key, QCheckBox *box) {
  const QVariant value = readTicket(settings, key);
  setState(box, value.isValid() && textReading(value) != falseValue ? stateOn : stateOff);
}

// The field shows the slider's own value, so a number out of range shows as the slider took it.
void readNumber(PMPrintSettings settings, QLatin1String key, int absent, QSlider *slider,
                QLineEdit *field) {
  const QVariant value = readTicket(settings, key);
  setIntValue(slider, value.isValid() ? integerReading(value) : absent);
  setIntValue(field, intValue(slider));
}

void readPaperSize(PMPrintSettings settings, QComboBox *popUp) {
  QVariant value;
  const OSStatus status = PMPrintSettingsGetValue(settings, targetPaperSizeKey, &value);
  if (value.isValid()) selectItemAtIndex(popUp, integerReading(value));
  if (status == noErr) return;
  logLine(QStringLiteral("\nFinishing PDE got an error %1 setting the value for %2 !\n")
              .arg(QString::number(status),
                   QStringLiteral("getting default values for enabled booklet controls in embed "
                                  "controls")));
}

}  // namespace

void OrvekFinishing::writeTicket(QLatin1String key, const QString &value) {
  PMPrintSettingsSetValue(settings, key, value, false);
}

void OrvekFinishing::writeFlag(QLatin1String key, const QCheckBox *box) {
  writeTicket(key, state(box) != stateOff ? trueValue : falseValue);
}

void OrvekFinishing::writeNumber(QLatin1String key, int number) {
  writeTicket(key, QString::number(number));
}

void OrvekFinishing::syncToTicket() {
  if (!hasBooklet) return;
  writeNumber(targetPaperSizeKey, indexOfSelectedItem(paperSizePopup));
  writeFlag(enableBookletKey, bookletChckBox);
  writeFlag(rightToLeftKey, rToLChckBox);
  writeFlag(pageBordersKey, pageBroderChckBox);
  writeNumber(gutterKey, intValue(gutterSlider));
  writeNumber(creepKey, intValue(creepSlider));
}

void OrvekFinishing::loadBookletControlsFromTicket() {
  readFlag(settings, enableBookletKey, bookletChckBox);
  readFlag(settings, rightToLeftKey, rToLChckBox);
  readFlag(settings, pageBordersKey, pageBroderChckBox);
  readNumber(settings, gutterKey, gutterRange.absent, gutterSlider, gutterTxtBox);
  readNumber(settings, creepKey, creepRange.absent, creepSlider, creepTxtBox);
  readPaperSize(settings, paperSizePopup);
}

void OrvekFinishing::reloadControlsWithPresets() {
  if (const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, offsetKeyword)) {
    const bool off = qstricmp(marked->choice, falseValue.data()) == 0;
    setState(offsetChckBox, off ? stateOff : stateOn);
  }
  if (!hasBooklet) {
    setHidden(bookletChckBox, true);
    return;
  }
  if (settings != nullptr) {
    loadBookletControlsFromTicket();
    if (integerReading(readTicket(settings, layoutNUpKey)) != 0) {
      // A booklet can't be combined with several pages per sheet.
      setState(bookletChckBox, stateOff);
      setEnabled(bookletChckBox, false);
    } else if (canResizeView) {
      setEnabled(bookletChckBox, true);
    }
  }
  syncToTicket();
  enableBookletChange(bookletChckBox);
}
