// SPDX-License-Identifier: Apache-2.0
// Printed sides as pictures, and the coded pages that are seen on them.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "tests/driver/Picture.h"

namespace orvek::test {

/// Has Ghostscript draw a printed file, one point a pixel, and looks for coded pages. Each side is
/// there as often as the printer would print it. A page's frame is the part of it that is seen; its
/// turn is -1 where one of its halves is out of sight.
std::vector<SeenSide> lookForCodedPages(const QString &printed);

/// The same for pictures that are there already, one behind the other (PPM, six).
std::vector<SeenSide> codedPagesIn(const QByteArray &pictures);

}  // namespace orvek::test
