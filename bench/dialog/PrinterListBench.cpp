// SPDX-License-Identifier: Apache-2.0
// The list of printers against the toolkit's own pop-up, both with three hundred queues, from the
// wish to open it until it is painted.  printer-list [ROUNDS]

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <memory>

#include "bench/Measure.h"
#include "host/dialog/PrinterMenu.h"
#include "host/dialog/PrinterModel.h"

namespace {

constexpr int queues = 300;

QString nameOf(int queue) {
  return QStringLiteral("queue-%1-of-a-large-house").arg(queue);
}

QList<orvek::PrinterEntry> entries() {
  QList<orvek::PrinterEntry> all;
  for (int queue = 0; queue < queues; ++queue) {
    all << orvek::PrinterEntry{nameOf(queue), nameOf(queue), QStringLiteral("Copier"),
                               QStringLiteral("Idle · Floor %1").arg(queue),
                               QStringLiteral("Floor %1").arg(queue)};
  }
  return all;
}

// In seconds. Off-screen a window is painted as soon as its events are handled.
double opening(QComboBox &menu) {
  menu.show();
  menu.setCurrentIndex(queues / 2);
  QCoreApplication::processEvents();
  const double seconds = bench::secondsOf([&menu] {
    menu.showPopup();
    QCoreApplication::processEvents();
  });
  menu.hidePopup();
  return seconds;
}

double openOurs(orvek::PrinterModel &printers) {
  orvek::PrinterMenu menu(printers, nullptr);
  return opening(menu);
}

double openTheirs() {
  QComboBox menu;
  for (int queue = 0; queue < queues; ++queue) menu.addItem(nameOf(queue));
  return opening(menu);
}

}  // namespace

int main(int argc, char **argv) {
  const QApplication application(argc, argv);
  constexpr int usualRounds = 15;
  constexpr double goal = 1.5;
  const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : usualRounds;
  orvek::PrinterModel printers;
  printers.setEntries(entries());
  bench::head();
  bench::line("open a list, 300 queues", "QComboBox",
              bench::compareMedians(
                  rounds, [&printers] { return openOurs(printers); }, openTheirs),
              1, "ms", goal);
}
