// SPDX-License-Identifier: Apache-2.0
// The panel's lines in the dialog's summary. They say what the panel shows, so they come from
// selections and controls, not from ticket or marks.

#include <QCheckBox>
#include <QSlider>

#include "panel/Keywords.h"
#include "panel/OrvekFinishing.h"
#include "platform/ui/Controls.h"

using namespace orvek;

namespace {

void addLine(QMap<QString, QString> &lines, const QString &title, const QString &value) {
  if (!title.isNull() && !value.isNull()) lines.insert(title, value);
}

QString optionTitle(const ppd_option_t *option) {
  return option == nullptr ? QString()
                           : decodeField(option->text, sizeof option->text, TextEncoding::UTF8);
}

}  // namespace

void OrvekFinishing::addFinishingLine(QMap<QString, QString> &lines, const PDEChoiceList *choices,
                                      const ppd_option_t *option,
                                      const PDEChoice *selection) const {
  if (choices != nullptr) addLine(lines, optionTitle(option), userTitle(selection));
}

void OrvekFinishing::addBookletLines(QMap<QString, QString> &lines) const {
  const auto text = [this](QLatin1String key) { return localizedString(pluginBundle.get(), key); };
  // A mixed box reads "off" here although the ticket has it "True".
  const auto onOff = [&](const QCheckBox *box) {
    return text(state(box) == stateOn ? onString : offString);
  };
  addLine(lines, text(enableBookletString), onOff(bookletChckBox));
  addLine(lines, text(rightToLeftString), onOff(rToLChckBox));
  addLine(lines, text(pageBordersString), onOff(pageBroderChckBox));
  addLine(lines, text(gutterString), stringValue(gutterSlider));
  addLine(lines, text(creepString), stringValue(creepSlider));
  const bool hasPageSize = ppdFindOption(ppd, paperSizeKeyword) != nullptr;
  addLine(lines, text(targetPaperSizeString),
          hasPageSize ? userTitle(paperSizeSelection) : text(fitCurrentJobString));
}

QMap<QString, QString> OrvekFinishing::summaryInfo() {
  QMap<QString, QString> lines;
  addFinishingLine(lines, staplingChoices.get(), staplingOption, staplingSelection);
  addFinishingLine(lines, foldingChoices.get(), foldingOption, foldingSelection);
  addFinishingLine(lines, punchChoices.get(), punchOption, punchSelection);
  addFinishingLine(lines, paperDestChoices.get(), paperDestOption, paperDestSelection);
  // Offset reads the same in every language.
  addLine(lines, optionTitle(offsetCollatedSetOtion),
          state(offsetChckBox) == stateOn ? trueValue : falseValue);
  if (hasBooklet) addBookletLines(lines);
  return lines;
}
