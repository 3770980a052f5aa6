// SPDX-License-Identifier: Apache-2.0
// The standard options, and what their choices are called.

#include <QtGlobal>
#include <array>

#include "host/ppd/StandardFinishing.h"
#include "host/ppd/StandardJob.h"
#include "host/ppd/StandardPaper.h"
#include "host/ppd/StandardWords.h"

namespace orvek {
namespace {

constexpr std::array sideNames{
    StandardWord{"none onesided false simplex", QT_TRANSLATE_NOOP("orvek::StandardNames", "Off")},
    StandardWord{"duplexnotumble twosidedlongedge longedge",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Long edge")},
    StandardWord{"duplextumble twosidedshortedge shortedge",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Short edge")},
    StandardWord{"true", QT_TRANSLATE_NOOP("orvek::StandardNames", "On")},
};

constexpr std::array colorNames{
    StandardWord{"gray grayscale kgray mono monochrome black devicegray blackandwhite",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Black and white")},
    StandardWord{"bilevel", QT_TRANSLATE_NOOP("orvek::StandardNames", "Pure black and white")},
    StandardWord{"rgb color srgb colour devicergb",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Color")},
    StandardWord{"cmyk devicecmyk", QT_TRANSLATE_NOOP("orvek::StandardNames", "Color (CMYK)")},
    StandardWord{"cmy", QT_TRANSLATE_NOOP("orvek::StandardNames", "Color (CMY)")},
    StandardWord{"adobergb", QT_TRANSLATE_NOOP("orvek::StandardNames", "Color (Adobe RGB)")},
    StandardWord{"rgb16 adobergb16", QT_TRANSLATE_NOOP("orvek::StandardNames", "Color (16 bits)")},
    StandardWord{"gray16", QT_TRANSLATE_NOOP("orvek::StandardNames", "Black and white (16 bits)")},
};

constexpr std::array qualityNames{
    StandardWord{"3 draft", QT_TRANSLATE_NOOP("orvek::StandardNames", "Draft")},
    StandardWord{"4 normal", QT_TRANSLATE_NOOP("orvek::StandardNames", "Normal")},
    StandardWord{"5 high", QT_TRANSLATE_NOOP("orvek::StandardNames", "High")},
    StandardWord{"best fine", QT_TRANSLATE_NOOP("orvek::StandardNames", "Best")},
    StandardWord{"fast economy", QT_TRANSLATE_NOOP("orvek::StandardNames", "Fast")},
    StandardWord{"standard medium", QT_TRANSLATE_NOOP("orvek::StandardNames", "Standard")},
    StandardWord{"photo", QT_TRANSLATE_NOOP("orvek::StandardNames", "Photo")},
};

constexpr std::array orderNames{
    StandardWord{"normal sameorderfaceup sameorderfacedown",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "First page first")},
    StandardWord{"reverse reverseorderfaceup reverseorderfacedown",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Last page first")},
};

constexpr std::array commonNames{
    StandardWord{"none off false", QT_TRANSLATE_NOOP("orvek::StandardNames", "Off")},
    StandardWord{"on true", QT_TRANSLATE_NOOP("orvek::StandardNames", "On")},
    StandardWord{"auto automatic autoselect automaticallyselect",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Automatic")},
    StandardWord{"default printerdefault",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Printer’s default")},
    StandardWord{"custom", QT_TRANSLATE_NOOP("orvek::StandardNames", "Custom")},
    StandardWord{"other", QT_TRANSLATE_NOOP("orvek::StandardNames", "Other")},
};

// One line for each option; the last ones have no choices of their own.
const std::array options{
    StandardOption{"duplex jclduplex efduplex arduplex kd03duplex sides",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Two-sided"), sideNames},
    StandardOption{"inputslot mediasource mediasourcecol",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Paper source"), paperSources(),
                   trays(), numberedPaperSources()},
    StandardOption{"mediatype", QT_TRANSLATE_NOOP("orvek::StandardNames", "Paper type"),
                   paperTypes()},
    StandardOption{"colormodel colormode coloreffectsmode printcolormode",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Color"), colorNames},
    StandardOption{"cupsprintquality printquality outputmode",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Quality"), qualityNames},
    StandardOption{"outputbin", QT_TRANSLATE_NOOP("orvek::StandardNames", "Output tray"),
                   outputTrays(), trays(), numberedOutputTrays()},
    StandardOption{.keywords = "staplelocation",
                   .name = QT_TRANSLATE_NOOP("orvek::StandardNames", "Stapling"),
                   .choices = staplings(),
                   .placed = placedStaples()},
    StandardOption{"foldtype", QT_TRANSLATE_NOOP("orvek::StandardNames", "Folding"), folds()},
    StandardOption{.keywords = "punchmedia",
                   .name = QT_TRANSLATE_NOOP("orvek::StandardNames", "Hole punch"),
                   .placed = placedHoles()},
    StandardOption{
        .keywords =
            "finishings cupsfinishings finishingstemplate finishingtemplate cupsfinishingtemplate",
        .name = QT_TRANSLATE_NOOP("orvek::StandardNames", "Finishing"),
        .choices = finishings(),
        .shared = folds(),
        .placed = placedFinishings()},
    StandardOption{"cutmedia", QT_TRANSLATE_NOOP("orvek::StandardNames", "Cutting"), cuts()},
    StandardOption{"outputorder pagedelivery",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Page order"), orderNames},
    StandardOption{.keywords = "bindedge",
                   .name = QT_TRANSLATE_NOOP("orvek::StandardNames", "Binding"),
                   .placed = placedBindings()},
    StandardOption{"booklet", QT_TRANSLATE_NOOP("orvek::StandardNames", "Booklet")},
    StandardOption{"resolution jclresolution printerresolution",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Resolution")},
    StandardOption{"collate", QT_TRANSLATE_NOOP("orvek::StandardNames", "Collate")},
    StandardOption{"numberup", QT_TRANSLATE_NOOP("orvek::StandardNames", "Pages per sheet")},
    StandardOption{"manualfeed", QT_TRANSLATE_NOOP("orvek::StandardNames", "Manual feed")},
    StandardOption{"jog", QT_TRANSLATE_NOOP("orvek::StandardNames", "Offset")},
    StandardOption{"trayswitch", QT_TRANSLATE_NOOP("orvek::StandardNames", "Tray switching")},
    StandardOption{"mirrorprint", QT_TRANSLATE_NOOP("orvek::StandardNames", "Mirror image")},
    StandardOption{"negativeprint", QT_TRANSLATE_NOOP("orvek::StandardNames", "Negative")},
    StandardOption{"smoothing", QT_TRANSLATE_NOOP("orvek::StandardNames", "Smoothing")},
    StandardOption{"slipsheet", QT_TRANSLATE_NOOP("orvek::StandardNames", "Slip sheets")},
    StandardOption{"tonersave tonersaver tonersaving tonersavemode economode",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Toner saving")},
    StandardOption{"pageset", QT_TRANSLATE_NOOP("orvek::StandardNames", "Odd and even pages"),
                   pageSets()},
    StandardOption{"printscaling", QT_TRANSLATE_NOOP("orvek::StandardNames", "Adjust size"),
                   pageScalings()},
    StandardOption{"numberuplayout",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Sequence on the sheet"),
                   pageLayouts()},
    StandardOption{"jobsheets", QT_TRANSLATE_NOOP("orvek::StandardNames", "Banner page"),
                   banners()},
    StandardOption{"jobholduntil", QT_TRANSLATE_NOOP("orvek::StandardNames", "Start printing"),
                   holdTimes()},
    StandardOption{"jobpriority", QT_TRANSLATE_NOOP("orvek::StandardNames", "Priority"),
                   priorities()},
    StandardOption{"mediacolor", QT_TRANSLATE_NOOP("orvek::StandardNames", "Paper color")},
    StandardOption{"mediaweight", QT_TRANSLATE_NOOP("orvek::StandardNames", "Paper weight")},
};

}  // namespace

std::span<const StandardOption> standardOptions() {
  return options;
}

StandardWords commonChoices() {
  return commonNames;
}

QString plainKeyword(const QString &keyword) {
  QString plain;
  for (const QChar letter : keyword) {
    if (letter.isLetterOrNumber()) plain += letter.toLower();
  }
  return plain;
}

}  // namespace orvek
