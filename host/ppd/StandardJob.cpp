// SPDX-License-Identifier: Apache-2.0
// What print servers call the settings of a job.

#include "host/ppd/StandardJob.h"

#include <QtGlobal>
#include <array>

namespace orvek {
namespace {

constexpr std::array pageSetNames{
    StandardWord{"all", QT_TRANSLATE_NOOP("orvek::StandardNames", "All pages")},
    StandardWord{"odd", QT_TRANSLATE_NOOP("orvek::StandardNames", "Odd pages only")},
    StandardWord{"even", QT_TRANSLATE_NOOP("orvek::StandardNames", "Even pages only")},
};

constexpr std::array scalingNames{
    StandardWord{"fit", QT_TRANSLATE_NOOP("orvek::StandardNames", "Fit to page")},
    StandardWord{"fill", QT_TRANSLATE_NOOP("orvek::StandardNames", "Fill the page")},
    StandardWord{"none", QT_TRANSLATE_NOOP("orvek::StandardNames", "Actual size")},
};

constexpr std::array layoutNames{
    StandardWord{"lrtb", QT_TRANSLATE_NOOP("orvek::StandardNames", "Left to right, then down")},
    StandardWord{"rltb", QT_TRANSLATE_NOOP("orvek::StandardNames", "Right to left, then down")},
    StandardWord{"lrbt", QT_TRANSLATE_NOOP("orvek::StandardNames", "Left to right, then up")},
    StandardWord{"rlbt", QT_TRANSLATE_NOOP("orvek::StandardNames", "Right to left, then up")},
    StandardWord{"tblr", QT_TRANSLATE_NOOP("orvek::StandardNames", "Down, then left to right")},
    StandardWord{"tbrl", QT_TRANSLATE_NOOP("orvek::StandardNames", "Down, then right to left")},
    StandardWord{"btlr", QT_TRANSLATE_NOOP("orvek::StandardNames", "Up, then left to right")},
    StandardWord{"btrl", QT_TRANSLATE_NOOP("orvek::StandardNames", "Up, then right to left")},
};

constexpr std::array bannerNames{
    StandardWord{"standard", QT_TRANSLATE_NOOP("orvek::StandardNames", "Standard")},
    StandardWord{"form", QT_TRANSLATE_NOOP("orvek::StandardNames", "Form")},
    StandardWord{"classified", QT_TRANSLATE_NOOP("orvek::StandardNames", "Classified")},
    StandardWord{"confidential", QT_TRANSLATE_NOOP("orvek::StandardNames", "Confidential")},
    StandardWord{"secret", QT_TRANSLATE_NOOP("orvek::StandardNames", "Secret")},
    StandardWord{"topsecret", QT_TRANSLATE_NOOP("orvek::StandardNames", "Top secret")},
    StandardWord{"unclassified", QT_TRANSLATE_NOOP("orvek::StandardNames", "Unclassified")},
};

constexpr std::array holdNames{
    StandardWord{"nohold", QT_TRANSLATE_NOOP("orvek::StandardNames", "At once")},
    StandardWord{"indefinite", QT_TRANSLATE_NOOP("orvek::StandardNames", "When released")},
    StandardWord{"daytime", QT_TRANSLATE_NOOP("orvek::StandardNames", "By day")},
    StandardWord{"evening", QT_TRANSLATE_NOOP("orvek::StandardNames", "In the evening")},
    StandardWord{"night", QT_TRANSLATE_NOOP("orvek::StandardNames", "At night")},
    StandardWord{"weekend", QT_TRANSLATE_NOOP("orvek::StandardNames", "At the weekend")},
    StandardWord{"secondshift", QT_TRANSLATE_NOOP("orvek::StandardNames", "In the second shift")},
    StandardWord{"thirdshift", QT_TRANSLATE_NOOP("orvek::StandardNames", "In the third shift")},
};

constexpr std::array priorityNames{
    StandardWord{"30", QT_TRANSLATE_NOOP("orvek::StandardNames", "Low")},
    StandardWord{"50", QT_TRANSLATE_NOOP("orvek::StandardNames", "Normal")},
    StandardWord{"80", QT_TRANSLATE_NOOP("orvek::StandardNames", "High")},
    StandardWord{"100", QT_TRANSLATE_NOOP("orvek::StandardNames", "Urgent")},
};

}  // namespace

StandardWords pageSets() {
  return pageSetNames;
}

StandardWords pageScalings() {
  return scalingNames;
}

StandardWords pageLayouts() {
  return layoutNames;
}

StandardWords banners() {
  return bannerNames;
}

StandardWords holdTimes() {
  return holdNames;
}

StandardWords priorities() {
  return priorityNames;
}

}  // namespace orvek
