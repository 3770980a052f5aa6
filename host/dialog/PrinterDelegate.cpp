// SPDX-License-Identifier: Apache-2.0
// The style draws what a row stands on, and this its two lines.

#include "host/dialog/PrinterDelegate.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>

#include "host/dialog/PrinterModel.h"

namespace orvek {
namespace {

constexpr int besideText = 8;
constexpr int aboveText = 4;
constexpr int betweenTexts = 14;
/// Of a row's width, for the name where something stands beside it.
constexpr qreal mostForName = 0.65;
/// Of the text's colour, in what is said by the way.
constexpr qreal quiet = 0.72;

// As labels do: most texts fit, and looking for an ellipsis takes long.
QString fitted(const QFontMetrics &metrics, const QString &text, Qt::TextElideMode mode,
               int width) {
  return metrics.horizontalAdvance(text) <= width ? text : metrics.elidedText(text, mode, width);
}

QColor mixed(const QColor &text, const QColor &base) {
  const auto part = [](float of, float in) { return float(of * quiet + in * (1 - quiet)); };
  return QColor::fromRgbF(part(text.redF(), base.redF()), part(text.greenF(), base.greenF()),
                          part(text.blueF(), base.blueF()));
}

/// Writes into parts of a row, which mirrors with the direction of the window.
class Writer {
 public:
  Writer(QPainter &painter, const QStyleOptionViewItem &option)
      : m_painter(painter), m_option(option) {}

  void write(const QRect &place, const QString &text, bool isQuiet, Qt::TextElideMode mode) const {
    const QPalette &palette = m_option.palette;
    const bool isSelected = (m_option.state & QStyle::State_Selected) != 0;
    const auto group =
        (m_option.state & QStyle::State_Enabled) != 0 ? QPalette::Active : QPalette::Disabled;
    const QColor colour =
        palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QColor base = palette.color(group, QPalette::Base);
    // On the colour of a selection there is none to spare.
    m_painter.setPen(isQuiet && !isSelected ? mixed(colour, base) : colour);
    const QRect seen = QStyle::visualRect(m_option.direction, m_option.rect, place);
    const auto alignment = QStyle::visualAlignment(m_option.direction, Qt::AlignLeft);
    m_painter.drawText(seen, int(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                       fitted(m_option.fontMetrics, text, mode, place.width()));
  }

 private:
  QPainter &m_painter;
  const QStyleOptionViewItem &m_option;
};

void writeLines(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) {
  const QString title = index.data().toString();
  const QString info = index.data(PrinterModel::InfoRole).toString();
  const QRect inner = option.rect.adjusted(besideText, aboveText, -besideText, -aboveText);
  const int line = option.fontMetrics.lineSpacing();
  const int wanted = option.fontMetrics.horizontalAdvance(title);
  const int most = info.isEmpty() ? inner.width() : int(inner.width() * mostForName);
  const int width = std::min(wanted, most);
  const int gone = width + betweenTexts;
  const Writer writer(painter, option);
  writer.write({inner.left(), inner.top(), width, line}, title, false, Qt::ElideMiddle);
  writer.write({inner.left() + gone, inner.top(), inner.width() - gone, line}, info, true,
               Qt::ElideRight);
  writer.write({inner.left(), inner.top() + line, inner.width(), line},
               index.data(PrinterModel::DetailRole).toString(), true, Qt::ElideRight);
}

}  // namespace

void PrinterDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const {
  QStyleOptionViewItem row(option);
  initStyleOption(&row, index);
  row.text.clear();
  const QStyle &style = row.widget != nullptr ? *row.widget->style() : *QApplication::style();
  style.drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
  painter->save();
  writeLines(*painter, row, index);
  if (index.data(PrinterModel::LastRecentRole).toBool()) {
    painter->setPen(row.palette.color(QPalette::Mid));
    painter->drawLine(row.rect.bottomLeft(), row.rect.bottomRight());
  }
  painter->restore();
}

QSize PrinterDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const {
  // As wide as the list, whatever the names: they are shortened.
  return {0, 2 * option.fontMetrics.lineSpacing() + 2 * aboveText};
}

}  // namespace orvek
