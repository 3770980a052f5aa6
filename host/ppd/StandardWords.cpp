// SPDX-License-Identifier: Apache-2.0
// The standard options, and what their choices are called.

#include <QtGlobal>
#include <array>

#include "host/ppd/StandardFinishing.h"
#include "host/ppd/StandardPaper.h"
#include "host/ppd/StandardWords.h"

namespace orvek {
namespace {

constexpr std::array sideNames{
    StandardWord{"none", QT_TRANSLATE_NOOP("orvek::StandardNames", "Off")},
    StandardWord{"onesided", QT_TRANSLATE_NOOP("orvek::StandardNames", "Off")},
    StandardWord{"false", QT_TRANSLATE_NOOP("orvek::StandardNames", "Off")},
    StandardWord{"simplex", QT_TRANSLATE_NOOP("orvek::StandardNames", "Off")},
    StandardWord{"duplexnotumble", QT_TRANSLATE_NOOP("orvek::StandardNames", "Long edge")},
    StandardWord{"twosidedlongedge", QT_TRANSLATE_NOOP("orvek::StandardNames", "Long edge")},
    StandardWord{"longedge", QT_TRANSLATE_NOOP("orvek::StandardNames", "Long edge")},
    StandardWord{"duplextumble", QT_TRANSLATE_NOOP("orvek::StandardNames", "Short edge")},
    StandardWord{"twosidedshortedge", QT_TRANSLATE_NOOP("orvek::StandardNames", "Short edge")},
    StandardWord{"shortedge", QT_TRANSLATE_NOOP("orvek::StandardNames", "Short edge")},
    StandardWord{"true", QT_TRANSLATE_NOOP("orvek::StandardNames", "On")},
};

constexpr std::array colorNames{
    StandardWord{"gray", QT_TRANSLATE_NOOP("orvek::StandardNames", "Black and white")},
    StandardWord{"grayscale", QT_TRANSLATE_NOOP("orvek::StandardNames", "Black and white")},
    StandardWord{"kgray", QT_TRANSLATE_NOOP("orvek::StandardNames", "Black and white")},
    StandardWord{"mono", QT_TRANSLATE_NOOP("orvek::StandardNames", "Black and white")},
    StandardWord{"monochrome", QT_TRANSLATE_NOOP("orvek::StandardNames", "Black and white")},
    StandardWord{"black", QT_TRANSLATE_NOOP("orvek::StandardNames", "Black and white")},
    StandardWord{"devicegray", QT_TRANSLATE_NOOP("orvek::StandardNames", "Black and white")},
    StandardWord{"blackandwhite", QT_TRANSLATE_NOOP("orvek::StandardNames", "Black and white")},
    StandardWord{"bilevel", QT_TRANSLATE_NOOP("orvek::StandardNames", "Pure black and white")},
    StandardWord{"rgb", QT_TRANSLATE_NOOP("orvek::StandardNames", "Color")},
    StandardWord{"color", QT_TRANSLATE_NOOP("orvek::StandardNames", "Color")},
    StandardWord{"srgb", QT_TRANSLATE_NOOP("orvek::StandardNames", "Color")},
    StandardWord{"colour", QT_TRANSLATE_NOOP("orvek::StandardNames", "Color")},
    StandardWord{"devicergb", QT_TRANSLATE_NOOP("orvek::StandardNames", "Color")},
    StandardWord{"cmyk", QT_TRANSLATE_NOOP("orvek::StandardNames", "Color (CMYK)")},
    StandardWord{"devicecmyk", QT_TRANSLATE_NOOP("orvek::StandardNames", "Color (CMYK)")},
    StandardWord{"cmy", QT_TRANSLATE_NOOP("orvek::StandardNames", "Color (CMY)")},
    StandardWord{"adobergb", QT_TRANSLATE_NOOP("orvek::StandardNames", "Color (Adobe RGB)")},
    StandardWord{"rgb16", QT_TRANSLATE_NOOP("orvek::StandardNames", "Color (16 bits)")},
    StandardWord{"adobergb16", QT_TRANSLATE_NOOP("orvek::StandardNames", "Color (16 bits)")},
    StandardWord{"gray16", QT_TRANSLATE_NOOP("orvek::StandardNames", "Black and white (16 bits)")},
};

constexpr std::array qualityNames{
    StandardWord{"3", QT_TRANSLATE_NOOP("orvek::StandardNames", "Draft")},
    StandardWord{"draft", QT_TRANSLATE_NOOP("orvek::StandardNames", "Draft")},
    StandardWord{"4", QT_TRANSLATE_NOOP("orvek::StandardNames", "Normal")},
    StandardWord{"normal", QT_TRANSLATE_NOOP("orvek::StandardNames", "Normal")},
    StandardWord{"5", QT_TRANSLATE_NOOP("orvek::StandardNames", "High")},
    StandardWord{"high", QT_TRANSLATE_NOOP("orvek::StandardNames", "High")},
    StandardWord{"best", QT_TRANSLATE_NOOP("orvek::StandardNames", "Best")},
    StandardWord{"fine", QT_TRANSLATE_NOOP("orvek::StandardNames", "Best")},
    StandardWord{"fast", QT_TRANSLATE_NOOP("orvek::StandardNames", "Fast")},
    StandardWord{"economy", QT_TRANSLATE_NOOP("orvek::StandardNames", "Fast")},
    StandardWord{"standard", QT_TRANSLATE_NOOP("orvek::StandardNames", "Standard")},
    StandardWord{"medium", QT_TRANSLATE_NOOP("orvek::StandardNames", "Standard")},
    StandardWord{"photo", QT_TRANSLATE_NOOP("orvek::StandardNames", "Photo")},
};

constexpr std::array orderNames{
    StandardWord{"normal", QT_TRANSLATE_NOOP("orvek::StandardNames", "First page first")},
    StandardWord{"sameorderfaceup", QT_TRANSLATE_NOOP("orvek::StandardNames", "First page first")},
    StandardWord{"sameorderfacedown",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "First page first")},
    StandardWord{"reverse", QT_TRANSLATE_NOOP("orvek::StandardNames", "Last page first")},
    StandardWord{"reverseorderfaceup",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Last page first")},
    StandardWord{"reverseorderfacedown",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Last page first")},
};

constexpr std::array commonNames{
    StandardWord{"none", QT_TRANSLATE_NOOP("orvek::StandardNames", "Off")},
    StandardWord{"off", QT_TRANSLATE_NOOP("orvek::StandardNames", "Off")},
    StandardWord{"false", QT_TRANSLATE_NOOP("orvek::StandardNames", "Off")},
    StandardWord{"on", QT_TRANSLATE_NOOP("orvek::StandardNames", "On")},
    StandardWord{"true", QT_TRANSLATE_NOOP("orvek::StandardNames", "On")},
    StandardWord{"auto", QT_TRANSLATE_NOOP("orvek::StandardNames", "Automatic")},
    StandardWord{"automatic", QT_TRANSLATE_NOOP("orvek::StandardNames", "Automatic")},
    StandardWord{"autoselect", QT_TRANSLATE_NOOP("orvek::StandardNames", "Automatic")},
    StandardWord{"automaticallyselect", QT_TRANSLATE_NOOP("orvek::StandardNames", "Automatic")},
    StandardWord{"default", QT_TRANSLATE_NOOP("orvek::StandardNames", "Printer’s default")},
    StandardWord{"printerdefault", QT_TRANSLATE_NOOP("orvek::StandardNames", "Printer’s default")},
    StandardWord{"custom", QT_TRANSLATE_NOOP("orvek::StandardNames", "Custom")},
    StandardWord{"other", QT_TRANSLATE_NOOP("orvek::StandardNames", "Other")},
};

// One line for each option; the last ones have no choices of their own.
const std::array options{
    StandardOption{" duplex jclduplex efduplex arduplex kd03duplex sides ",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Two-sided"),
                   sideNames,
                   {},
                   {},
                   {}},
    StandardOption{" inputslot mediasource mediasourcecol ",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Paper source"),
                   paperSources(),
                   trays(),
                   numberedPaperSources(),
                   {}},
    StandardOption{" mediatype ",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Paper type"),
                   paperTypes(),
                   {},
                   {},
                   {}},
    StandardOption{" colormodel colormode coloreffectsmode printcolormode ",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Color"),
                   colorNames,
                   {},
                   {},
                   {}},
    StandardOption{" cupsprintquality printquality outputmode ",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Quality"),
                   qualityNames,
                   {},
                   {},
                   {}},
    StandardOption{" outputbin ",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Output tray"),
                   outputTrays(),
                   trays(),
                   numberedOutputTrays(),
                   {}},
    StandardOption{" staplelocation ",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Stapling"),
                   staplings(),
                   {},
                   {},
                   placedStaples()},
    StandardOption{
        " foldtype ", QT_TRANSLATE_NOOP("orvek::StandardNames", "Folding"), folds(), {}, {}, {}},
    StandardOption{" punchmedia ",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Hole punch"),
                   {},
                   {},
                   {},
                   placedHoles()},
    StandardOption{
        " finishings cupsfinishings finishingstemplate finishingtemplate cupsfinishingtemplate ",
        QT_TRANSLATE_NOOP("orvek::StandardNames", "Finishing"),
        finishings(),
        folds(),
        {},
        placedFinishings()},
    StandardOption{
        " cutmedia ", QT_TRANSLATE_NOOP("orvek::StandardNames", "Cutting"), cuts(), {}, {}, {}},
    StandardOption{" outputorder pagedelivery ",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Page order"),
                   orderNames,
                   {},
                   {},
                   {}},
    StandardOption{" bindedge ",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Binding"),
                   {},
                   {},
                   {},
                   placedBindings()},
    StandardOption{
        " booklet ", QT_TRANSLATE_NOOP("orvek::StandardNames", "Booklet"), {}, {}, {}, {}},
    StandardOption{" resolution jclresolution printerresolution ",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Resolution"),
                   {},
                   {},
                   {},
                   {}},
    StandardOption{
        " collate ", QT_TRANSLATE_NOOP("orvek::StandardNames", "Collate"), {}, {}, {}, {}},
    StandardOption{
        " numberup ", QT_TRANSLATE_NOOP("orvek::StandardNames", "Pages per sheet"), {}, {}, {}, {}},
    StandardOption{
        " manualfeed ", QT_TRANSLATE_NOOP("orvek::StandardNames", "Manual feed"), {}, {}, {}, {}},
    StandardOption{" jog ", QT_TRANSLATE_NOOP("orvek::StandardNames", "Offset"), {}, {}, {}, {}},
    StandardOption{" trayswitch ",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Tray switching"),
                   {},
                   {},
                   {},
                   {}},
    StandardOption{
        " mirrorprint ", QT_TRANSLATE_NOOP("orvek::StandardNames", "Mirror image"), {}, {}, {}, {}},
    StandardOption{
        " negativeprint ", QT_TRANSLATE_NOOP("orvek::StandardNames", "Negative"), {}, {}, {}, {}},
    StandardOption{
        " smoothing ", QT_TRANSLATE_NOOP("orvek::StandardNames", "Smoothing"), {}, {}, {}, {}},
    StandardOption{
        " slipsheet ", QT_TRANSLATE_NOOP("orvek::StandardNames", "Slip sheets"), {}, {}, {}, {}},
    StandardOption{" tonersave tonersaver tonersaving tonersavemode economode ",
                   QT_TRANSLATE_NOOP("orvek::StandardNames", "Toner saving"),
                   {},
                   {},
                   {},
                   {}},
    StandardOption{
        " mediacolor ", QT_TRANSLATE_NOOP("orvek::StandardNames", "Paper color"), {}, {}, {}, {}},
    StandardOption{
        " mediaweight ", QT_TRANSLATE_NOOP("orvek::StandardNames", "Paper weight"), {}, {}, {}, {}},
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
