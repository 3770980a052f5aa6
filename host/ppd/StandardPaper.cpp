// SPDX-License-Identifier: Apache-2.0
// Paper: its sizes and kinds, where it comes from and where it goes.

#include <QtGlobal>
#include <array>

#include "host/ppd/StandardPaper.h"

namespace orvek {
namespace {

// Of paper that is printed on, and of what was.
constexpr std::array trayNames{
    StandardWord{"upper top", QT_TRANSLATE_NOOP("orvek::StandardNames", "Upper tray")},
    StandardWord{"middle", QT_TRANSLATE_NOOP("orvek::StandardNames", "Middle tray")},
    StandardWord{"lower bottom", QT_TRANSLATE_NOOP("orvek::StandardNames", "Lower tray")},
    StandardWord{"rear", QT_TRANSLATE_NOOP("orvek::StandardNames", "Rear tray")},
    StandardWord{"side", QT_TRANSLATE_NOOP("orvek::StandardNames", "Side tray")},
    StandardWord{"left", QT_TRANSLATE_NOOP("orvek::StandardNames", "Left tray")},
    StandardWord{"right", QT_TRANSLATE_NOOP("orvek::StandardNames", "Right tray")},
    StandardWord{"center", QT_TRANSLATE_NOOP("orvek::StandardNames", "Center tray")},
    StandardWord{"largecapacity", QT_TRANSLATE_NOOP("orvek::StandardNames", "Large-capacity tray")},
};

constexpr std::array sourceNames{
    StandardWord{"manual manualfeed", QT_TRANSLATE_NOOP("orvek::StandardNames", "Manual feed")},
    StandardWord{"bypass bypasstray", QT_TRANSLATE_NOOP("orvek::StandardNames", "Bypass tray")},
    StandardWord{"multipurpose multipurposetray mptray",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Multipurpose tray")},
    StandardWord{"largecapacitytray",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Large-capacity tray")},
    StandardWord{"envelope envelopefeeder envfeed envelopemanual",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Envelope feeder")},
    StandardWord{"main maintray", QT_TRANSLATE_NOOP("orvek::StandardNames", "Main tray")},
    StandardWord{"alternate", QT_TRANSLATE_NOOP("orvek::StandardNames", "Alternate tray")},
    StandardWord{"photo phototray", QT_TRANSLATE_NOOP("orvek::StandardNames", "Photo tray")},
    StandardWord{"disc", QT_TRANSLATE_NOOP("orvek::StandardNames", "Disc tray")},
    StandardWord{"cassette", QT_TRANSLATE_NOOP("orvek::StandardNames", "Cassette")},
    StandardWord{"roll mainroll", QT_TRANSLATE_NOOP("orvek::StandardNames", "Roll")},
    StandardWord{"tractor", QT_TRANSLATE_NOOP("orvek::StandardNames", "Tractor feed")},
};

constexpr std::array sourceNumbers{
    StandardWord{"tray", QT_TRANSLATE_NOOP("orvek::StandardNames", "Tray %1")},
    StandardWord{"cassette", QT_TRANSLATE_NOOP("orvek::StandardNames", "Cassette %1")},
    StandardWord{"roll", QT_TRANSLATE_NOOP("orvek::StandardNames", "Roll %1")},
};

constexpr std::array binNames{
    StandardWord{"standard standardbin",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Standard tray")},
    StandardWord{"facedown", QT_TRANSLATE_NOOP("orvek::StandardNames", "Face down")},
    StandardWord{"faceup", QT_TRANSLATE_NOOP("orvek::StandardNames", "Face up")},
    StandardWord{"stacker", QT_TRANSLATE_NOOP("orvek::StandardNames", "Stacker")},
    StandardWord{"mailbox mymailbox", QT_TRANSLATE_NOOP("orvek::StandardNames", "Mailbox")},
    StandardWord{"finisher", QT_TRANSLATE_NOOP("orvek::StandardNames", "Finisher tray")},
    StandardWord{"booklet bookletmaker", QT_TRANSLATE_NOOP("orvek::StandardNames", "Booklet tray")},
};

constexpr std::array binNumbers{
    StandardWord{"tray bin", QT_TRANSLATE_NOOP("orvek::StandardNames", "Tray %1")},
    StandardWord{"stacker", QT_TRANSLATE_NOOP("orvek::StandardNames", "Stacker %1")},
    StandardWord{"mailbox", QT_TRANSLATE_NOOP("orvek::StandardNames", "Mailbox %1")},
};

constexpr std::array typeNames{
    StandardWord{"plain plainpaper stationery", QT_TRANSLATE_NOOP("orvek::StandardNames", "Plain")},
    StandardWord{"recycled stationeryrecycled",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Recycled")},
    StandardWord{"letterhead stationeryletterhead",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Letterhead")},
    StandardWord{"prepunched stationeryprepunched",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Prepunched")},
    StandardWord{"preprinted stationerypreprinted",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Preprinted")},
    StandardWord{"bond stationerybond", QT_TRANSLATE_NOOP("orvek::StandardNames", "Bond")},
    StandardWord{"heavy heavyweight thick stationeryheavyweight",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Heavy")},
    StandardWord{"thin light lightweight stationerylightweight",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Thin")},
    StandardWord{"coated stationerycoated", QT_TRANSLATE_NOOP("orvek::StandardNames", "Coated")},
    StandardWord{"cardstock", QT_TRANSLATE_NOOP("orvek::StandardNames", "Card stock")},
    StandardWord{"labels label", QT_TRANSLATE_NOOP("orvek::StandardNames", "Labels")},
    StandardWord{"transparency transparencies",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Transparencies")},
    StandardWord{"envelope envelopes", QT_TRANSLATE_NOOP("orvek::StandardNames", "Envelopes")},
    StandardWord{"glossy photographicglossy", QT_TRANSLATE_NOOP("orvek::StandardNames", "Glossy")},
    StandardWord{"photo photopaper photographic",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Photo paper")},
    StandardWord{"photographichighgloss",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "High-gloss photo paper")},
    StandardWord{"photographicmatte",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Matte photo paper")},
    StandardWord{"photographicsemigloss photographicsatin",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Semi-gloss photo paper")},
    StandardWord{"matte matt stationerymatte", QT_TRANSLATE_NOOP("orvek::StandardNames", "Matte")},
    StandardWord{"color colored coloured stationerycolored",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Colored")},
    StandardWord{"rough", QT_TRANSLATE_NOOP("orvek::StandardNames", "Rough")},
    StandardWord{"tabstock tabs fullcuttabs",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Tab stock")},
    StandardWord{"vellum", QT_TRANSLATE_NOOP("orvek::StandardNames", "Vellum")},
    StandardWord{"continuous", QT_TRANSLATE_NOOP("orvek::StandardNames", "Continuous")},
    StandardWord{"disc", QT_TRANSLATE_NOOP("orvek::StandardNames", "Disc")},
    StandardWord{"stationeryfine", QT_TRANSLATE_NOOP("orvek::StandardNames", "Fine paper")},
    StandardWord{"cotton stationerycotton", QT_TRANSLATE_NOOP("orvek::StandardNames", "Cotton")},
};

constexpr std::array paperNames{
    StandardWord{"letter", QT_TRANSLATE_NOOP("orvek::StandardNames", "US Letter")},
    StandardWord{"legal", QT_TRANSLATE_NOOP("orvek::StandardNames", "US Legal")},
    StandardWord{"tabloid", QT_TRANSLATE_NOOP("orvek::StandardNames", "Tabloid")},
    StandardWord{"ledger", QT_TRANSLATE_NOOP("orvek::StandardNames", "Ledger")},
    StandardWord{"statement invoice", QT_TRANSLATE_NOOP("orvek::StandardNames", "Statement")},
    StandardWord{"executive", QT_TRANSLATE_NOOP("orvek::StandardNames", "Executive")},
    StandardWord{"folio", QT_TRANSLATE_NOOP("orvek::StandardNames", "Folio")},
    StandardWord{"oficio", QT_TRANSLATE_NOOP("orvek::StandardNames", "Oficio")},
    StandardWord{"postcard hagaki", QT_TRANSLATE_NOOP("orvek::StandardNames", "Postcard")},
    StandardWord{"doublepostcard oufuku oufukuhagaki",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Double postcard")},
    StandardWord{"env10 com10 envcom10",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Envelope No. 10")},
    StandardWord{"env9", QT_TRANSLATE_NOOP("orvek::StandardNames", "Envelope No. 9")},
    StandardWord{"envdl dl", QT_TRANSLATE_NOOP("orvek::StandardNames", "Envelope DL")},
    StandardWord{"envc4", QT_TRANSLATE_NOOP("orvek::StandardNames", "Envelope C4")},
    StandardWord{"envc5", QT_TRANSLATE_NOOP("orvek::StandardNames", "Envelope C5")},
    StandardWord{"envc6", QT_TRANSLATE_NOOP("orvek::StandardNames", "Envelope C6")},
    StandardWord{"envisob5", QT_TRANSLATE_NOOP("orvek::StandardNames", "Envelope B5")},
    StandardWord{"envmonarch monarch",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Envelope Monarch")},
    StandardWord{"enva2", QT_TRANSLATE_NOOP("orvek::StandardNames", "Envelope A2")},
    StandardWord{"isob4", QT_TRANSLATE_NOOP("orvek::StandardNames", "B4 (ISO)")},
    StandardWord{"isob5", QT_TRANSLATE_NOOP("orvek::StandardNames", "B5 (ISO)")},
    StandardWord{"jisb4 b4jis", QT_TRANSLATE_NOOP("orvek::StandardNames", "B4 (JIS)")},
    StandardWord{"jisb5 b5jis", QT_TRANSLATE_NOOP("orvek::StandardNames", "B5 (JIS)")},
    StandardWord{"jisb6 b6jis", QT_TRANSLATE_NOOP("orvek::StandardNames", "B6 (JIS)")},
    StandardWord{"a3plus supera3 superb", QT_TRANSLATE_NOOP("orvek::StandardNames", "A3 oversize")},
    StandardWord{"3x5", QT_TRANSLATE_NOOP("orvek::StandardNames", "3 × 5 in")},
    StandardWord{"4x6", QT_TRANSLATE_NOOP("orvek::StandardNames", "4 × 6 in")},
    StandardWord{"5x7", QT_TRANSLATE_NOOP("orvek::StandardNames", "5 × 7 in")},
    StandardWord{"5x8", QT_TRANSLATE_NOOP("orvek::StandardNames", "5 × 8 in")},
    StandardWord{"8x10", QT_TRANSLATE_NOOP("orvek::StandardNames", "8 × 10 in")},
    StandardWord{"foolscap", QT_TRANSLATE_NOOP("orvek::StandardNames", "US Foolscap")},
};

constexpr std::array suffixNames{
    StandardWord{"borderless", QT_TRANSLATE_NOOP("orvek::StandardNames", "%1, borderless")},
    StandardWord{"fullbleed", QT_TRANSLATE_NOOP("orvek::StandardNames", "%1, borderless")},
    StandardWord{"nomargins", QT_TRANSLATE_NOOP("orvek::StandardNames", "%1, borderless")},
    StandardWord{"nmgn", QT_TRANSLATE_NOOP("orvek::StandardNames", "%1, borderless")},
    StandardWord{"transverse", QT_TRANSLATE_NOOP("orvek::StandardNames", "%1, rotated")},
    StandardWord{"rotated", QT_TRANSLATE_NOOP("orvek::StandardNames", "%1, rotated")},
    StandardWord{"extra", QT_TRANSLATE_NOOP("orvek::StandardNames", "%1, oversize")},
    StandardWord{"small", QT_TRANSLATE_NOOP("orvek::StandardNames", "%1, large margins")},
};

}  // namespace

StandardWords trays() {
  return trayNames;
}

StandardWords paperSources() {
  return sourceNames;
}

StandardWords numberedPaperSources() {
  return sourceNumbers;
}

StandardWords outputTrays() {
  return binNames;
}

StandardWords numberedOutputTrays() {
  return binNumbers;
}

StandardWords paperTypes() {
  return typeNames;
}

StandardWords standardPapers() {
  return paperNames;
}

StandardWords paperSuffixes() {
  return suffixNames;
}

}  // namespace orvek
