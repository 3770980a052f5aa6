// SPDX-License-Identifier: Apache-2.0
// A tree view without a tree: one row a line.

#include "host/dialog/SummaryView.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>

#include "platform/ui/FocusMark.h"
#include "platform/ui/PlainText.h"
#include "platform/ui/TextScale.h"

namespace orvek {
namespace {

constexpr int preferredWidth = 316;
constexpr int preferredHeight = 236;
constexpr int leastWidth = 136;
constexpr int leastHeight = 76;
constexpr int rowPadding = 2;
constexpr int cellMargin = 3;
constexpr double titleShare = 0.56;

constexpr int cellFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

// Rows with air around their text. Measures and draws the text itself: the style lays every cell
// out several times, for icons, check boxes and selections that this list has not, and that is
// a good part of the time that the window takes to open.
class RowDelegate final : public QStyledItemDelegate {
 public:
  explicit RowDelegate(QTreeView *view) : QStyledItemDelegate(view), m_view(view) {}

  QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override {
    const QFontMetrics metrics(fontOf(index, option));
    const QString text = index.data().toString();
    const int width = m_view->columnWidth(index.column()) - 2 * cellMargin;
    const int height =
        metrics.horizontalAdvance(text) < width  // rounded: as wide as the cell may be wider
            ? metrics.height()
            : metrics.boundingRect(0, 0, width, QWIDGETSIZE_MAX, cellFlags, text).height();
    return {m_view->columnWidth(index.column()), height + 2 * rowPadding};
  }

  void paint(QPainter *painter, const QStyleOptionViewItem &option,
             const QModelIndex &index) const override {
    const auto group =
        option.state.testFlag(QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
    painter->setFont(fontOf(index, option));
    painter->setPen(option.palette.color(group, QPalette::Text));
    painter->drawText(option.rect.adjusted(cellMargin, rowPadding, -cellMargin, -rowPadding),
                      cellFlags, index.data().toString());
  }

 private:
  static QFont fontOf(const QModelIndex &index, const QStyleOptionViewItem &option) {
    const QVariant own = index.data(Qt::FontRole);
    return own.isValid() ? own.value<QFont>() : option.font;
  }

  QTreeView *m_view;
};

QTreeWidgetItem *itemFor(const SummaryLine &line, const QFont &plain) {
  auto *item = new QTreeWidgetItem({line.title, line.value});
  QFont font = plain;
  font.setBold(line.changed);
  for (int column = 0; column < 2; ++column) {
    item->setFont(column, font);
    item->setTextAlignment(column, Qt::AlignLeft | Qt::AlignTop);
  }
  const QString sentence = line.changed
                               ? SummaryView::tr("%1: %2 (changed)").arg(line.title, line.value)
                               : SummaryView::tr("%1: %2").arg(line.title, line.value);
  item->setData(0, Qt::AccessibleTextRole, sentence);
  item->setToolTip(0, plainToolTip(sentence));
  item->setToolTip(1, plainToolTip(sentence));
  return item;
}

}  // namespace

SummaryView::SummaryView(QWidget *parent) : QTreeWidget(parent) {
  setObjectName(QStringLiteral("summary"));
  setAccessibleName(tr("Summary"));
  setAccessibleDescription(tr("All settings of the job; those that were changed come first"));
  setItemDelegate(new RowDelegate(this));
  setColumnCount(2);
  setHeaderHidden(true);
  setRootIsDecorated(false);
  setIndentation(0);
  setWordWrap(true);
  setTextElideMode(Qt::ElideRight);
  setSelectionMode(QAbstractItemView::NoSelection);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  header()->setStretchLastSection(true);
  header()->setSectionResizeMode(QHeaderView::Fixed);
}

void SummaryView::show(const QList<SummaryLine> &lines) {
  if (lines == m_lines && topLevelItemCount() > 0) return;
  m_lines = lines;
  clear();
  for (const SummaryLine &line : lines) addTopLevelItem(itemFor(line, font()));
}

QSize SummaryView::sizeHint() const {
  return {scaledToText(preferredWidth), scaledToText(preferredHeight)};
}

QSize SummaryView::minimumSizeHint() const {
  return {scaledToText(leastWidth), scaledToText(leastHeight)};
}

void SummaryView::paintEvent(QPaintEvent *event) {
  QTreeWidget::paintEvent(event);
  QPainter painter(viewport());
  paintFocusMark(painter, *viewport());
}

void SummaryView::resizeEvent(QResizeEvent *event) {
  setColumnWidth(0, int(viewport()->width() * titleShare));
  QTreeWidget::resizeEvent(event);
  scheduleDelayedItemsLayout();
}

}  // namespace orvek
