// SPDX-License-Identifier: Apache-2.0
// What is done to printed sheets: staples, holes, folds, cuts, and where.

#include <QtGlobal>
#include <array>

#include "host/ppd/StandardFinishing.h"

namespace orvek {
namespace {

constexpr std::array stapleNames{
    StandardWord{"singleportrait",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "One staple, portrait")},
    StandardWord{"singlelandscape",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "One staple, landscape")},
    StandardWord{"dualportrait",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Two staples, portrait")},
    StandardWord{"duallandscape",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Two staples, landscape")},
    StandardWord{"saddlestitch saddle", QT_TRANSLATE_NOOP("orvek::StandardNames", "Saddle stitch")},
};

constexpr std::array foldNames{
    StandardWord{"accordion foldaccordion",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Accordion fold")},
    StandardWord{"doublegate folddoublegate",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Double gate fold")},
    StandardWord{"gate foldgate", QT_TRANSLATE_NOOP("orvek::StandardNames", "Gate fold")},
    StandardWord{"half foldhalf", QT_TRANSLATE_NOOP("orvek::StandardNames", "Half fold")},
    StandardWord{"halfz foldhalfz", QT_TRANSLATE_NOOP("orvek::StandardNames", "Half Z fold")},
    StandardWord{"leftgate foldleftgate",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Left gate fold")},
    StandardWord{"letter foldletter", QT_TRANSLATE_NOOP("orvek::StandardNames", "Letter fold")},
    StandardWord{"parallel foldparallel",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Parallel fold")},
    StandardWord{"poster foldposter", QT_TRANSLATE_NOOP("orvek::StandardNames", "Poster fold")},
    StandardWord{"rightgate foldrightgate",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Right gate fold")},
    StandardWord{"z foldz", QT_TRANSLATE_NOOP("orvek::StandardNames", "Z fold")},
    StandardWord{"engineeringz foldengineeringz",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "Engineering Z fold")},
    StandardWord{"saddle foldsaddle", QT_TRANSLATE_NOOP("orvek::StandardNames", "Saddle fold")},
};

constexpr std::array finishingNames{
    StandardWord{"staple", QT_TRANSLATE_NOOP("orvek::StandardNames", "Staple")},
    StandardWord{"punch", QT_TRANSLATE_NOOP("orvek::StandardNames", "Punch")},
    StandardWord{"cover", QT_TRANSLATE_NOOP("orvek::StandardNames", "Cover")},
    StandardWord{"bind", QT_TRANSLATE_NOOP("orvek::StandardNames", "Binding")},
    StandardWord{"saddlestitch", QT_TRANSLATE_NOOP("orvek::StandardNames", "Saddle stitch")},
    StandardWord{"edgestitch", QT_TRANSLATE_NOOP("orvek::StandardNames", "Edge stitch")},
    StandardWord{"fold", QT_TRANSLATE_NOOP("orvek::StandardNames", "Fold")},
    StandardWord{"trim", QT_TRANSLATE_NOOP("orvek::StandardNames", "Trim")},
    StandardWord{"bookletmaker", QT_TRANSLATE_NOOP("orvek::StandardNames", "Booklet")},
    StandardWord{"jogoffset jog", QT_TRANSLATE_NOOP("orvek::StandardNames", "Offset")},
    StandardWord{"coat", QT_TRANSLATE_NOOP("orvek::StandardNames", "Coating")},
    StandardWord{"laminate", QT_TRANSLATE_NOOP("orvek::StandardNames", "Laminating")},
};

constexpr std::array stapleKinds{
    StandardWord{"edgestitch", QT_TRANSLATE_NOOP("orvek::StandardNames", "Edge stitch")},
    StandardWord{"stapledual dual", QT_TRANSLATE_NOOP("orvek::StandardNames", "Two staples")},
    StandardWord{"stapletriple triple", QT_TRANSLATE_NOOP("orvek::StandardNames", "Three staples")},
    StandardWord{"staple single", QT_TRANSLATE_NOOP("orvek::StandardNames", "One staple")},
    StandardWord{"", QT_TRANSLATE_NOOP("orvek::StandardNames", "One staple")},
};

constexpr std::array holeKinds{
    StandardWord{"punchdual dual", QT_TRANSLATE_NOOP("orvek::StandardNames", "Two holes")},
    StandardWord{"punchtriple triple", QT_TRANSLATE_NOOP("orvek::StandardNames", "Three holes")},
    StandardWord{"punchquad quad", QT_TRANSLATE_NOOP("orvek::StandardNames", "Four holes")},
    StandardWord{"punchmultiple multiple", QT_TRANSLATE_NOOP("orvek::StandardNames", "Many holes")},
    StandardWord{"punch single", QT_TRANSLATE_NOOP("orvek::StandardNames", "One hole")},
};

constexpr std::array finishingKinds{
    StandardWord{"edgestitch", QT_TRANSLATE_NOOP("orvek::StandardNames", "Edge stitch")},
    StandardWord{"stapledual", QT_TRANSLATE_NOOP("orvek::StandardNames", "Two staples")},
    StandardWord{"stapletriple", QT_TRANSLATE_NOOP("orvek::StandardNames", "Three staples")},
    StandardWord{"staple", QT_TRANSLATE_NOOP("orvek::StandardNames", "One staple")},
    StandardWord{"punchdual", QT_TRANSLATE_NOOP("orvek::StandardNames", "Two holes")},
    StandardWord{"punchtriple", QT_TRANSLATE_NOOP("orvek::StandardNames", "Three holes")},
    StandardWord{"punchquad", QT_TRANSLATE_NOOP("orvek::StandardNames", "Four holes")},
    StandardWord{"punchmultiple", QT_TRANSLATE_NOOP("orvek::StandardNames", "Many holes")},
    StandardWord{"punch", QT_TRANSLATE_NOOP("orvek::StandardNames", "One hole")},
    StandardWord{"bind", QT_TRANSLATE_NOOP("orvek::StandardNames", "Binding")},
};

constexpr std::array bindingKinds{
    StandardWord{"bind", QT_TRANSLATE_NOOP("orvek::StandardNames", "Binding")},
    StandardWord{"", QT_TRANSLATE_NOOP("orvek::StandardNames", "Binding")},
};

constexpr std::array cutNames{
    StandardWord{"endofpage trimafterpages",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "After each page")},
    StandardWord{"endofdocument endofdoc trimafterdocuments",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "After each document")},
    StandardWord{"endofset trimaftercopies",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "After each copy")},
    StandardWord{"endofjob trimafterjob",
                 QT_TRANSLATE_NOOP("orvek::StandardNames", "After the job")},
};

constexpr std::array placeNames{
    StandardWord{"topleft", QT_TRANSLATE_NOOP("orvek::StandardNames", "top left")},
    StandardWord{"topright", QT_TRANSLATE_NOOP("orvek::StandardNames", "top right")},
    StandardWord{"bottomleft", QT_TRANSLATE_NOOP("orvek::StandardNames", "bottom left")},
    StandardWord{"bottomright", QT_TRANSLATE_NOOP("orvek::StandardNames", "bottom right")},
    StandardWord{"upperleft", QT_TRANSLATE_NOOP("orvek::StandardNames", "top left")},
    StandardWord{"upperright", QT_TRANSLATE_NOOP("orvek::StandardNames", "top right")},
    StandardWord{"lowerleft", QT_TRANSLATE_NOOP("orvek::StandardNames", "bottom left")},
    StandardWord{"lowerright", QT_TRANSLATE_NOOP("orvek::StandardNames", "bottom right")},
    StandardWord{"left", QT_TRANSLATE_NOOP("orvek::StandardNames", "left")},
    StandardWord{"right", QT_TRANSLATE_NOOP("orvek::StandardNames", "right")},
    StandardWord{"top", QT_TRANSLATE_NOOP("orvek::StandardNames", "top")},
    StandardWord{"bottom", QT_TRANSLATE_NOOP("orvek::StandardNames", "bottom")},
};

}  // namespace

StandardWords staplings() {
  return stapleNames;
}

StandardWords folds() {
  return foldNames;
}

StandardWords finishings() {
  return finishingNames;
}

StandardWords placedStaples() {
  return stapleKinds;
}

StandardWords placedHoles() {
  return holeKinds;
}

StandardWords placedFinishings() {
  return finishingKinds;
}

StandardWords placedBindings() {
  return bindingKinds;
}

StandardWords cuts() {
  return cutNames;
}

StandardWords placesOfTheSheet() {
  return placeNames;
}

}  // namespace orvek
