// SPDX-License-Identifier: Apache-2.0
// The sides of a job's sheets: one of them as large as the place allows or larger, or several small
// ones. Draws only what can be seen, and says which pages that takes.
#pragma once

#include <QAbstractScrollArea>
#include <vector>

#include "host/preview/PagePictures.h"
#include "host/preview/SidePainter.h"

namespace orvek {

/// The scrolling area. Belongs to its parent, owns the sides, and lives on the interface's thread.
/// Nothing fails; a page without picture has its number in its place.
class SheetsView final : public QAbstractScrollArea {
  Q_OBJECT

 public:
  /// Borrows the pictures, which must outlive it.
  explicit SheetsView(PagePictures &pictures, QWidget *parent = nullptr);

  using Sides = std::vector<imposition::PrintedSide>;

  /// Stays where it was, as far as there still is such a side. Gives the sides before: to let go
  /// of very many takes time.
  Sides setSides(Sides sides);
  const Sides &sides() const { return m_sides; }

  /// The side that is shown or picked, from 0.
  int current() const { return m_current; }
  void setCurrent(int side);

  bool showsSeveral() const { return m_showsSeveral; }
  void setShowsSeveral(bool several);

  /// 1: one side fits, several have their usual size.
  double zoom() const { return m_zoom; }
  void setZoom(double zoom);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void currentChanged(int side);
  void showsSeveralChanged(bool several);

 protected:
  void paintEvent(QPaintEvent *event) override;
  void focusInEvent(QFocusEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;

 private:
  bool isEmpty() const { return m_sides.empty(); }
  int lastSide() const { return static_cast<int>(m_sides.size()) - 1; }
  int columns() const;
  QSize cellSize() const;
  QRect cell(int side) const;
  int sideAt(QPoint place) const;
  QRectF paperOf(int side) const;
  std::pair<int, int> visibleSides() const;
  void updateScrollBars();
  void showCurrentCell();
  void step(int sides);
  void zoomBy(double factor);
  bool scrollKey(int key);
  void paintCell(QPainter *painter, int side) const;
  void addWishes(int side, QList<PageWish> *wishes) const;
  void wish();

  PagePictures &m_pictures;
  Sides m_sides;
  /// What every side fits into.
  QSizeF m_largest;
  int m_current = 0;
  bool m_showsSeveral = false;
  double m_zoom = 1;
  /// Eighths of a degree not yet used.
  int m_wheel = 0;
};

}  // namespace orvek
