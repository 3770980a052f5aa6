// SPDX-License-Identifier: Apache-2.0
// One text for each.

#include "host/session/OrientationText.h"

#include <QCoreApplication>

namespace orvek {
namespace {

/// The texts of this file, for translation.
struct Text {
  Q_DECLARE_TR_FUNCTIONS(orvek::OrientationText)
};

}  // namespace

QString orientationText(Orientation orientation) {
  switch (orientation) {
    case Orientation::Portrait:
      return Text::tr("Portrait");
    case Orientation::Landscape:
      return Text::tr("Landscape");
    case Orientation::ReversePortrait:
      return Text::tr("Portrait, upside down");
    case Orientation::ReverseLandscape:
      return Text::tr("Landscape, upside down");
    case Orientation::Automatic:
      break;
  }
  return Text::tr("As in the document");
}

}  // namespace orvek
