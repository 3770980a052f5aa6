// SPDX-License-Identifier: Apache-2.0
// Jobs made at random, the same ones from the same seed on every machine.
#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <vector>

#include "tests/driver/MarkedDocument.h"

namespace orvek::test {

/// A document of coded pages to make.
struct RandomDocument {
  std::vector<MarkedPage> pages;
  bool isPostScript = false;
};

struct RandomJob {
  /// A printer of the family, by its model, or one of variantPPDs().
  QString printer;
  /// Of orvek-print, beside those that say where to print to.
  QStringList arguments;
  QList<RandomDocument> documents;
};

RandomJob randomJob(unsigned seed);

/// Printers that the family has none of, as PPDs made of one of theirs, by name: a small one that
/// prints in colour, as pages are told apart by it; landscape turned to the other side; the
/// last page first, by habit or in one tray.
QMap<QString, QByteArray> variantPPDs();

}  // namespace orvek::test
