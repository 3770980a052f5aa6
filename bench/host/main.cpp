// SPDX-License-Identifier: Apache-2.0
// Runs the parts.

#include <QApplication>

#include "bench/host/Benches.h"
#include "host/translations/Translations.h"

int main(int argc, char **argv) {
  const QApplication application(argc, argv);
  orvek::installTranslations();
  bench::benchMnemonics();
  return 0;
}
