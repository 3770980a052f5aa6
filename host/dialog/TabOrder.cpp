// SPDX-License-Identifier: Apache-2.0
// Sorts what stands in the toolkit's chain of focus.

#include "host/dialog/TabOrder.h"

#include <QLayout>
#include <QScrollArea>
#include <QWidget>
#include <algorithm>

namespace orvek {
namespace {

// What scrolls lays out what is in it.
const QLayout *layoutIn(QLayoutItem *item) {
  const QWidget *widget = item->widget();
  if (widget == nullptr) return item->layout();
  const auto *area = qobject_cast<const QScrollArea *>(widget);
  const bool holds = area != nullptr && area->widget() != nullptr;
  return holds ? area->widget()->layout() : widget->layout();
}

void collect(const QLayout &layout, QList<QWidget *> *parts) {
  for (int place = 0; place < layout.count(); ++place) {
    QLayoutItem *item = layout.itemAt(place);
    if (const QLayout *inner = layoutIn(item)) {
      collect(*inner, parts);
    } else if (item->widget() != nullptr) {
      *parts << item->widget();
    }
  }
}

int partOf(const QWidget *widget, const QList<QWidget *> &parts) {
  for (int part = 0; part < parts.size(); ++part) {
    const QWidget *each = parts[part];
    if (each == widget || each->isAncestorOf(widget)) return part;
  }
  return -1;
}

// What hands the keyboard on to another goes where that one does.
QList<QWidget *> stopsOf(QWidget &window) {
  QList<QWidget *> stops;
  for (QWidget *next = window.nextInFocusChain(); next != &window;
       next = next->nextInFocusChain()) {
    const bool takesTab = (next->focusPolicy() & Qt::TabFocus) != 0;
    if (takesTab && next->focusProxy() == nullptr && !next->isWindow()) stops << next;
  }
  return stops;
}

QList<QWidget *> orderedStops(QWidget &window) {
  QList<QWidget *> parts;
  if (window.layout() != nullptr) collect(*window.layout(), &parts);
  QList<QWidget *> stops = stopsOf(window);
  std::stable_sort(stops.begin(), stops.end(), [&parts](const QWidget *one, const QWidget *other) {
    return partOf(one, parts) < partOf(other, parts);
  });
  return stops;
}

}  // namespace

bool moveFocus(QWidget &window, bool next) {
  const QList<QWidget *> stops = orderedStops(window);
  const int count = static_cast<int>(stops.size());
  const int step = next ? 1 : -1;
  int place = static_cast<int>(stops.indexOf(window.focusWidget()));
  if (place < 0 && !next) place = count;
  for (int tried = 0; tried < count; ++tried) {
    place = (place + step + count) % count;
    QWidget *stop = stops[place];
    if (!stop->isVisible() || !stop->isEnabled()) continue;
    stop->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
  }
  return false;
}

}  // namespace orvek
