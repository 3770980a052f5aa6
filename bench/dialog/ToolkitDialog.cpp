// SPDX-License-Identifier: Apache-2.0
// The reference: Qt's own print dialog on a queue. Prints the milliseconds from nothing to the
// first painted frame.  toolkit-dialog QUEUE

#include <QPrintDialog>
#include <QPrinter>

#include "bench/dialog/FirstPaint.h"

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  if (argc != 2) return 2;
  orvek::bench::warmUp();
  QElapsedTimer clock;
  clock.start();
  QPrinter printer;
  printer.setPrinterName(QString::fromLocal8Bit(argv[1]));
  QPrintDialog dialog(&printer);
  const orvek::bench::FirstPaint watch(&dialog, clock);
  dialog.show();
  return QApplication::exec();
}
