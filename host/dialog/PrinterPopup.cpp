// SPDX-License-Identifier: Apache-2.0
// A frame over the window with its own filter of the rows.

#include "host/dialog/PrinterPopup.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>
#include <algorithm>

#include "host/dialog/PrinterDelegate.h"
#include "host/dialog/PrinterModel.h"
#include "host/settings/Announcement.h"
#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

constexpr int margin = 6;
constexpr int leastWidth = 380;
constexpr int mostRows = 9;
constexpr int leastRows = 3;

// Each word may stand anywhere.
class Found final : public QSortFilterProxyModel {
 public:
  using QSortFilterProxyModel::QSortFilterProxyModel;

  void search(const QString &text) {
    m_words = text.simplified().split(u' ', Qt::SkipEmptyParts);
    invalidateFilter();
  }

 protected:
  bool filterAcceptsRow(int row, const QModelIndex &parent) const override {
    if (m_words.isEmpty()) return true;
    const QString texts =
        sourceModel()->index(row, 0, parent).data(PrinterModel::SearchRole).toString();
    return std::all_of(m_words.begin(), m_words.end(), [&texts](const QString &word) {
      return texts.contains(word, Qt::CaseInsensitive);
    });
  }

 private:
  QStringList m_words;
};

}  // namespace

PrinterPopup::PrinterPopup(PrinterModel &printers, QWidget *parent)
    : QFrame(parent, Qt::Popup),
      m_printers(printers),
      m_found(new Found(this)),
      m_search(new QLineEdit(this)),
      m_list(new QListView(this)),
      m_none(new PlainLabel(tr("No printer matches"), m_list)),
      m_note(new PlainLabel(this)),
      m_again(new QPushButton(tr("Try Again"), this)) {
  // A click on the menu closes it, and must not open it at once again.
  setAttribute(Qt::WA_NoMouseReplay);
  setFrameStyle(QFrame::StyledPanel);
  nameParts();
  m_found->setSourceModel(&m_printers);
  m_list->setModel(m_found);
  m_list->setItemDelegate(new PrinterDelegate(m_list));
  m_list->setUniformItemSizes(true);
  m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_list->setFocusPolicy(Qt::NoFocus);
  m_list->setMouseTracking(true);
  m_note->setWordWrap(true);
  m_again->setAutoDefault(false);
  auto *inList = new QVBoxLayout(m_list);
  inList->addWidget(m_none, 0, Qt::AlignCenter);
  auto *below = new QHBoxLayout;
  below->addWidget(m_note, 1);
  below->addWidget(m_again);
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(margin, margin, margin, margin);
  column->setSpacing(margin);
  column->addWidget(m_search);
  column->addWidget(m_list, 1);
  column->addLayout(below);
  setFocusProxy(m_search);
  connectParts();
  setNote({}, false);
}

void PrinterPopup::nameParts() {
  setObjectName(QStringLiteral("printerPopup"));
  setAccessibleName(tr("Printers"));
  m_search->setObjectName(QStringLiteral("printerSearch"));
  m_search->setPlaceholderText(tr("Search for name, description or location"));
  m_search->setAccessibleName(m_search->placeholderText());
  m_search->setClearButtonEnabled(true);
  m_list->setObjectName(QStringLiteral("printerList"));
  m_list->setAccessibleName(tr("Printers"));
  m_note->setObjectName(QStringLiteral("printerNote"));
  m_again->setObjectName(QStringLiteral("printerAgain"));
}

void PrinterPopup::connectParts() {
  m_search->installEventFilter(this);
  connect(m_search, &QLineEdit::textChanged, this, &PrinterPopup::search);
  connect(m_list, &QListView::clicked, this, &PrinterPopup::take);
  connect(m_list, &QListView::entered, this, &PrinterPopup::mark);
  m_saying.setSingleShot(true);
  connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, &m_saying,
          qOverload<>(&QTimer::start));
  connect(&m_saying, &QTimer::timeout, this, &PrinterPopup::sayMarked);
  connect(m_again, &QPushButton::clicked, this, &PrinterPopup::againAsked);
  // Others come and go while somebody looks for one.
  connect(m_found, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
    m_keptMark = marked();
    m_keptScroll = m_list->verticalScrollBar()->value();
  });
  connect(m_found, &QAbstractItemModel::modelReset, this, [this] {
    markDestination(m_keptMark);
    m_list->verticalScrollBar()->setValue(m_keptScroll);
    m_none->setVisible(m_found->rowCount() == 0);
  });
}

void PrinterPopup::openAt(const QWidget &menu, const QString &destination, const QString &typed) {
  m_search->setText(typed);
  search(typed);
  if (typed.isEmpty()) markDestination(destination);
  place(menu);
  show();
  m_search->setFocus(Qt::PopupFocusReason);
  m_list->scrollTo(m_list->currentIndex(), QAbstractItemView::PositionAtCenter);
}

// Below the menu where there is room for a few rows, else above it; no larger for many printers.
void PrinterPopup::place(const QWidget &menu) {
  const QRect screen = menu.screen()->availableGeometry();
  const QRect from(menu.mapToGlobal(QPoint()), menu.size());
  const int row =
      m_list->sizeHintForRow(0) > 0 ? m_list->sizeHintForRow(0) : fontMetrics().height();
  const auto heightFor = [&](int rows) {
    const int others = sizeHint().height() - m_list->sizeHint().height();
    return others + rows * row + 2 * m_list->frameWidth();
  };
  const int rows = std::clamp(m_printers.rowCount(), leastRows, mostRows);
  const int below = screen.bottom() - from.bottom();
  const int above = from.top() - screen.top();
  const bool isBelow = below >= heightFor(rows) || below >= above;
  const int height = std::min(heightFor(rows), isBelow ? below : above);
  const int width = std::min(std::max(from.width(), leastWidth), screen.width());
  const int start = menu.isRightToLeft() ? from.right() + 1 - width : from.left();
  const int left = std::clamp(start, screen.left(), screen.right() + 1 - width);
  setGeometry(left, isBelow ? from.bottom() + 1 : from.top() - height, width, height);
}

void PrinterPopup::setNote(const QString &words, bool offersAgain) {
  m_note->setText(words);
  m_note->setVisible(!words.isNull());
  m_again->setVisible(offersAgain);
}

void PrinterPopup::search(const QString &text) {
  static_cast<Found *>(m_found)->search(text);
  m_none->setVisible(m_found->rowCount() == 0);
  markBest(text.simplified());
}

void PrinterPopup::mark(const QModelIndex &index) {
  if ((index.flags() & Qt::ItemIsEnabled) != 0) m_list->setCurrentIndex(index);
}

// Who types the beginning of a name means that one.
void PrinterPopup::markBest(const QString &text) {
  QModelIndex best;
  for (int row = 0; row < m_found->rowCount(); ++row) {
    const QModelIndex index = m_found->index(row, 0);
    if ((index.flags() & Qt::ItemIsEnabled) == 0) continue;
    const QString name = index.data(PrinterModel::DestinationRole).toString();
    const bool begins = name.startsWith(text, Qt::CaseInsensitive);
    if (!best.isValid() || begins) best = index;
    if (begins) break;
  }
  m_list->setCurrentIndex(best);
  m_list->scrollTo(best);
}

void PrinterPopup::markDestination(const QString &destination) {
  const int row = m_printers.rowOf(destination);
  const QModelIndex index = m_found->mapFromSource(m_printers.index(std::max(row, 0)));
  if ((index.flags() & Qt::ItemIsEnabled) != 0) return mark(index);
  markBest(m_search->text().simplified());
}

QString PrinterPopup::marked() const {
  return m_list->currentIndex().data(PrinterModel::DestinationRole).toString();
}

void PrinterPopup::take(const QModelIndex &index) {
  if ((index.flags() & Qt::ItemIsEnabled) == 0) return;
  const QString destination = index.data(PrinterModel::DestinationRole).toString();
  hide();
  Q_EMIT taken(destination);
}

// The keyboard stays in the search line, from which nobody hears of the list.
void PrinterPopup::sayMarked() {
  if (!isVisible()) return;
  const QModelIndex index = m_list->currentIndex();
  announce(*m_list,
           index.isValid() ? index.data(Qt::AccessibleTextRole).toString() : m_none->text());
}

bool PrinterPopup::goesToList(const QKeyEvent &key) const {
  const bool isFree = m_search->text().isEmpty() || key.modifiers() == Qt::ControlModifier;
  switch (key.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return true;
    case Qt::Key_Home:
    case Qt::Key_End:
      return isFree;
    default:
      return false;
  }
}

bool PrinterPopup::eventFilter(QObject *watched, QEvent *event) {
  if (watched != m_search || event->type() != QEvent::KeyPress) return false;
  auto &key = *static_cast<QKeyEvent *>(event);
  if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
    take(m_list->currentIndex());
    return true;
  }
  if (!goesToList(key)) return false;
  QKeyEvent plain(key.type(), key.key(), Qt::NoModifier);
  QCoreApplication::sendEvent(m_list, &plain);
  return true;
}

void PrinterPopup::hideEvent(QHideEvent *event) {
  QFrame::hideEvent(event);
  Q_EMIT closed();
}

}  // namespace orvek
