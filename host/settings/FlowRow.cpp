// SPDX-License-Identifier: Apache-2.0
// Breaks parts into lines, then shares out each line's width.

#include "host/settings/FlowRow.h"

#include <QEvent>
#include <QStyle>
#include <algorithm>

namespace orvek {
namespace {

QSize leastOf(const QWidget *part) {
  const QSize least = part->minimumSizeHint();
  const QSize own = part->minimumSize();
  return {own.width() > 0 ? own.width() : least.width(),
          own.height() > 0 ? own.height() : least.height()};
}

QSize wishOf(const QWidget *part) {
  return part->sizeHint().expandedTo(leastOf(part)).boundedTo(part->maximumSize());
}

int heightOf(const QWidget *part, int width) {
  return part->hasHeightForWidth() ? std::max(part->heightForWidth(width), part->minimumHeight())
                                   : wishOf(part).height();
}

int lineHeight(const QList<QWidget *> &line, const QList<int> &widths) {
  int height = 0;
  for (int i = 0; i < line.size(); ++i) height = std::max(height, heightOf(line[i], widths[i]));
  return height;
}

}  // namespace

FlowRow::FlowRow(int gap, int lineGap, QWidget *parent)
    : QWidget(parent), m_gap(gap), m_lineGap(lineGap) {
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

void FlowRow::add(QWidget *part) {
  part->setParent(this);
  m_parts << part;
}

QSize FlowRow::sizeHint() const {
  QSize all(0, 0);
  for (const QWidget *part : m_parts) {
    if (part->isHidden()) continue;
    const QSize wish = wishOf(part);
    all.rwidth() += wish.width() + (all.width() > 0 ? m_gap : 0);
    all.rheight() = std::max(all.height(), heightOf(part, wish.width()));
  }
  return all;
}

QSize FlowRow::minimumSizeHint() const {
  QSize least(0, 0);
  for (const QWidget *part : m_parts) {
    if (!part->isHidden()) least = least.expandedTo(leastOf(part));
  }
  return least;
}

int FlowRow::heightForWidth(int width) const {
  int height = 0;
  for (const Line &line : linesFor(width)) {
    height += lineHeight(line, widthsOf(line, width)) + (height > 0 ? m_lineGap : 0);
  }
  return height;
}

QList<FlowRow::Line> FlowRow::linesFor(int width) const {
  QList<Line> lines;
  int used = 0;
  for (QWidget *part : m_parts) {
    if (part->isHidden()) continue;
    const int wish = wishOf(part).width();
    const bool fits = !lines.isEmpty() && used + m_gap + wish <= width;
    if (!fits) lines.append(Line());
    used = fits ? used + m_gap + wish : wish;
    lines.last() << part;
  }
  return lines;
}

QList<int> FlowRow::widthsOf(const Line &line, int width) const {
  QList<int> widths;
  int left = width - m_gap * static_cast<int>(line.size() - 1);
  for (const QWidget *part : line) {
    widths << std::max(std::min(wishOf(part).width(), left), leastOf(part).width());
    left -= widths.last();
  }
  for (int i = 0; i < line.size() && left > 0; ++i) {
    if (!line[i]->sizePolicy().expandingDirections().testFlag(Qt::Horizontal)) continue;
    const int more = std::min(left, line[i]->maximumWidth() - widths[i]);
    widths[i] += more;
    left -= more;
  }
  return widths;
}

void FlowRow::arrange() {
  int y = 0;
  for (const Line &line : linesFor(width())) {
    const QList<int> widths = widthsOf(line, width());
    const int height = lineHeight(line, widths);
    int x = 0;
    for (int i = 0; i < line.size(); ++i) {
      const bool isFixed = line[i]->sizePolicy().verticalPolicy() == QSizePolicy::Fixed;
      const QRect place(x, y, widths[i], isFixed ? heightOf(line[i], widths[i]) : height);
      line[i]->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
      x += widths[i] + m_gap;
    }
    y += height + m_lineGap;
  }
}

bool FlowRow::event(QEvent *event) {
  const bool done = QWidget::event(event);
  // Comes when a part needs other room than before.
  if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::LayoutDirectionChange) {
    updateGeometry();
    arrange();
  }
  return done;
}

void FlowRow::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  arrange();
}

}  // namespace orvek
