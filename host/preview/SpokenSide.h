// SPDX-License-Identifier: Apache-2.0
// A side in words, for screen readers and captions.
#pragma once

#include <QString>

#include "imposition/JobSheets.h"

namespace orvek {

/// "Sheet 3 of 12, back"; without the side where all sheets are one-sided.
QString sideTitle(const imposition::PrintedSide &side, int sheets, bool twoSided);

/// "Sheet 1, front: page 8 left, page 1 right, saddle fold, 2 staples".
QString spokenSide(const imposition::PrintedSide &side, const QString &fold);

/// A folding choice in words: ours for the family's own, else what the PPD calls it.
QString foldInWords(const QString &keyword, const QString &printersWord);

}  // namespace orvek
