// SPDX-License-Identifier: Apache-2.0
// View and delegate of the options' tree.

#include "host/settings/OptionsView.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>

#include "host/ppd/CustomChoice.h"
#include "host/ppd/CustomValue.h"
#include "host/settings/ChoiceBox.h"
#include "host/settings/OptionsModel.h"

namespace orvek {
namespace {

constexpr int rowPadding = 4;
constexpr int arrowSize = 10;
constexpr int dotSize = 8;
constexpr int fewOptions = 60;
constexpr int leastWidth = 320;
constexpr int leastHeight = 84;
constexpr double optionShare = 0.55;

const OptionEntry *entryAt(const QModelIndex &index) {
  return static_cast<const OptionsModel *>(index.model())->entryAt(index);
}

QRect atEdge(const QStyleOptionViewItem &option, Qt::Alignment edge, int size) {
  return QStyle::alignedRect(option.direction, edge | Qt::AlignVCenter, QSize(size, size),
                             option.rect.adjusted(rowPadding, 0, -rowPadding, 0));
}

QColor textColor(const QStyleOptionViewItem &option) {
  const bool isSelected = option.state.testFlag(QStyle::State_Selected);
  return option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
}

void paintArrow(QPainter *painter, const QStyleOptionViewItem &option) {
  QStyleOption arrow;
  arrow.initFrom(option.widget);
  arrow.rect = atEdge(option, Qt::AlignRight, arrowSize);
  arrow.palette.setColor(QPalette::ButtonText, textColor(option));
  arrow.palette.setColor(QPalette::WindowText, textColor(option));
  const QStyle *style = option.widget != nullptr ? option.widget->style() : QApplication::style();
  style->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, painter, option.widget);
}

// Marks a changed option, behind its name.
void paintDot(QPainter *painter, const QStyleOptionViewItem &option) {
  const bool isSelected = option.state.testFlag(QStyle::State_Selected);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(isSelected ? textColor(option) : option.palette.color(QPalette::Highlight));
  painter->drawEllipse(atEdge(option, Qt::AlignRight, dotSize));
  painter->restore();
}

}  // namespace

ChoiceDelegate::ChoiceDelegate(PrintSession &session, QObject *parent)
    : QStyledItemDelegate(parent),
      m_session(session),
      m_availability(new Availability(session, this)) {}

void ChoiceDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const {
  QStyledItemDelegate::paint(painter, option, index);
  if (entryAt(index) == nullptr) return;
  const bool isSwitch = index.data(Qt::CheckStateRole).isValid();
  if (index.column() == OptionsModel::ChoiceColumn && !isSwitch) paintArrow(painter, option);
  const bool isChanged = static_cast<const OptionsModel *>(index.model())->isChangedAt(index);
  if (index.column() == OptionsModel::OptionColumn && isChanged) paintDot(painter, option);
}

QSize ChoiceDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const {
  return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 2 * rowPadding);
}

QWidget *ChoiceDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                      const QModelIndex &index) const {
  const OptionEntry *entry = entryAt(index);
  if (entry == nullptr) return nullptr;
  auto *box = new ChoiceBox(m_availability, parent);
  box->setAccessibleName(entry->text);
  box->setChoices(entry->keyword, choicesOf(m_session.marks().printer(), entry->keyword));
  auto *self = const_cast<ChoiceDelegate *>(this);  // the base asks for editors in a const call
  const QString option = entry->keyword;
  connect(box, &ChoiceBox::choicePicked, self,
          [self, box, option](const QString &choice) { self->pickIn(box, option, choice); });
  QTimer::singleShot(0, box, [box] { box->showPopup(); });
  return box;
}

void ChoiceDelegate::pickIn(QWidget *editor, const QString &option, const QString &choice) {
  Q_EMIT closeEditor(editor);
  if (isCustomChoice(choice)) {
    Q_EMIT customAsked(option);
  } else {
    m_session.pick(option, choice);
  }
}

void ChoiceDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const {
  const OptionEntry *entry = entryAt(index);
  auto *box = qobject_cast<ChoiceBox *>(editor);
  if (entry == nullptr || box == nullptr) return;
  const QString marked = m_session.marks().marked(entry->keyword);
  box->setChoice(listedChoice(marked));
}

// A pick is made when it is made; an editor that is merely left changes nothing.
void ChoiceDelegate::setModelData(QWidget *, QAbstractItemModel *, const QModelIndex &) const {}

OptionsView::OptionsView(PrintSession &session, OptionsModel *model, QWidget *parent)
    : QTreeView(parent), m_options(model) {
  setObjectName(QStringLiteral("options"));
  setAccessibleName(tr("Options"));
  setAccessibleDescription(
      tr("Return opens an option's choices or switches it, Delete sets it back"));
  setModel(model);
  auto *choices = new ChoiceDelegate(session, this);
  connect(choices, &ChoiceDelegate::customAsked, this, &OptionsView::customAsked);
  setItemDelegate(choices);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setExpandsOnDoubleClick(false);
  setAlternatingRowColors(false);
  setTabKeyNavigation(false);
  header()->setSectionsMovable(false);
  header()->setSectionResizeMode(QHeaderView::Fixed);
  header()->setStretchLastSection(true);
  connect(this, &QTreeView::clicked, this, [this](const QModelIndex &index) {
    const bool isGroup = m_options->entryAt(index) == nullptr;
    if (m_options->isSwitchAt(index)) {
      setCurrentIndex(index);  // a click on the box alone would not make it so
      return;
    }
    if (isGroup || index.column() == OptionsModel::ChoiceColumn) open(index);
  });
  connect(model, &QAbstractItemModel::modelReset, this, &OptionsView::openGroups);
  openGroups();
}

void OptionsView::openGroups() {
  int options = 0;
  for (int row = 0; row < m_options->rowCount(); ++row) {
    setFirstColumnSpanned(row, {}, true);
    options += m_options->rowCount(m_options->index(row, 0));
  }
  if (options <= fewOptions || m_options->isFiltered()) expandAll();
}

void OptionsView::open(const QModelIndex &index) {
  const QModelIndex choice = index.siblingAtColumn(OptionsModel::ChoiceColumn);
  if (m_options->entryAt(index) == nullptr) {
    setExpanded(index.siblingAtColumn(0), !isExpanded(index.siblingAtColumn(0)));
  } else if (m_options->isSwitchAt(choice)) {
    const bool isOn = choice.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    m_options->setData(choice, isOn ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
  } else {
    edit(choice);
  }
}

QSize OptionsView::minimumSizeHint() const {
  return {leastWidth, leastHeight};
}

// The base would hand Return on to the window, which would print.
void OptionsView::keyPressEvent(QKeyEvent *event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_F2:
      if (currentIndex().isValid()) open(currentIndex());
      return;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
      Q_EMIT setBackAsked();
      return;
    default:
      QTreeView::keyPressEvent(event);
  }
}

void OptionsView::resizeEvent(QResizeEvent *event) {
  setColumnWidth(OptionsModel::OptionColumn, static_cast<int>(viewport()->width() * optionShare));
  QTreeView::resizeEvent(event);
  // Fields that open below take room from the list, not the row that they belong to.
  if (event->size().height() < event->oldSize().height()) scrollTo(currentIndex());
}

void OptionsView::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
  QTreeView::currentChanged(current, previous);
  Q_EMIT currentMoved();
}

}  // namespace orvek
