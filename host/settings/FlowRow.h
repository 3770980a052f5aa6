// SPDX-License-Identifier: Apache-2.0
// Widgets beside each other, as many in a line as there is room for.
#pragma once

#include <QList>
#include <QWidget>

namespace orvek {

/// Has its parts stand in one line where it can, in several where the window is narrow: first come,
/// first placed, from the side where reading begins. A part whose horizontal policy is Expanding
/// takes what its line leaves, up to its maximum. Parts are as high as their line, but for those
/// whose vertical policy is Fixed. Hidden parts take no room. Belongs to its parent,
/// owns its parts, and lives on the interface's thread. Nothing fails.
class FlowRow : public QWidget {
  Q_OBJECT

 public:
  /// The gap in pixels, between parts and between lines.
  FlowRow(int gap, int lineGap, QWidget *parent);

  void add(QWidget *part);

  /// All in one line.
  QSize sizeHint() const override;

  /// As wide as the widest part must be.
  QSize minimumSizeHint() const override;

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;

 protected:
  bool event(QEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;

 private:
  using Line = QList<QWidget *>;

  QList<Line> linesFor(int width) const;
  QList<int> widthsOf(const Line &line, int width) const;
  void arrange();

  int m_gap;
  int m_lineGap;
  QList<QWidget *> m_parts;
};

}  // namespace orvek
