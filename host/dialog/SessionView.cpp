// SPDX-License-Identifier: Apache-2.0
// Pages at one side; at the other the preview, and the summary below it. In a narrow window all of
// that stands below the pages.

#include "host/dialog/SessionView.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "host/dialog/ElidedLabel.h"
#include "host/dialog/HistoryButtons.h"
#include "host/dialog/LazyPage.h"
#include "host/dialog/PanelPage.h"
#include "host/dialog/SummaryView.h"
#include "host/preview/JobPreview.h"
#include "host/settings/GeneralPage.h"
#include "host/settings/Mnemonics.h"
#include "host/settings/OptionsPage.h"
#include "platform/ui/PlainText.h"
#include "platform/ui/TextScale.h"

namespace orvek {
namespace {

constexpr int gap = 12;
// Takes a panel as large as the usual one gets, and a bar to scroll it by.
constexpr QSize pageRoom(618, 456);
constexpr int leastWidth = 300;
constexpr int leastPageHeight = 150;
constexpr int leastPreviewHeight = 190;
constexpr int leastAsideWidth = 136;
constexpr int previewShare = 3;
constexpr int summaryShare = 1;
// Of the room beyond what both sides want: settings are no better to read for being wide, sheets
// are.
constexpr int pagesShare = 1;
constexpr int asideShare = 2;

QSize scaledPageRoom() {
  return {scaledToText(pageRoom.width()), scaledToText(pageRoom.height())};
}

// Asks for the same room whatever it shows, so that the window needs no other for another page or
// another printer.
class Pages final : public QTabWidget {
 public:
  explicit Pages(QWidget *parent) : QTabWidget(parent) {}

  QSize sizeHint() const override {
    return QTabWidget::sizeHint().expandedTo(scaledPageRoom() +
                                             QSize(0, tabBar()->sizeHint().height()));
  }
};

}  // namespace

SessionView::SessionView(PrintSession &session, const DocumentInfo &document, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_path(document.path),
      m_pages(new Pages(this)),
      m_summary(new SummaryView(this)) {
  m_pages->setObjectName(QStringLiteral("pages"));
  m_pages->setAccessibleName(tr("Settings"));
  m_pages->setDocumentMode(true);
  addPages();
  addPageKeys();
  m_sides = new QHBoxLayout(this);
  m_sides->setContentsMargins(0, 0, 0, 0);
  m_sides->setSpacing(gap);
  m_sides->addWidget(m_pages, pagesShare);
  m_sides->addLayout(buildAside(), asideShare);
  turn(false);
  connect(m_pages, &QTabWidget::currentChanged, this, &SessionView::pageTurned);
  connect(&session, &PrintSession::changed, this, &SessionView::followSession);
  followSession();
}

QBoxLayout *SessionView::buildAside() {
  auto *title = new ElidedLabel(Qt::ElideRight, this);
  title->setWholeText(tr("Summary"));
  // As high as a tab, so that both sides of the window have the same headings.
  title->setFixedHeight(m_pages->tabBar()->sizeHint().height() - 1);
  m_aside = new QVBoxLayout;
  m_aside->setSpacing(0);
  auto *heading = new QHBoxLayout;
  heading->addWidget(title, 1);
  auto *history = new HistoryButtons(m_session, this);
  history->setFixedHeight(title->height());
  heading->addWidget(history);
  m_aside->addLayout(heading);
  // It scrolls; what it would like to have is the preview's.
  m_summary->setSizePolicy(m_summary->sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
  m_summary->setMinimumHeight(m_summary->minimumSizeHint().height());
  m_aside->addWidget(m_summary, summaryShare);
  addPreview();
  return m_aside;
}

// In a window too narrow for both sides the pages get all of its width and all the height that they
// would like, and whoever shows this view has it scroll.
void SessionView::turn(bool isNarrow) {
  m_sides->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  const QSize room = scaledPageRoom();
  m_pages->setMinimumWidth(isNarrow ? scaledToText(leastAsideWidth) : room.width());
  m_pages->setMinimumHeight(isNarrow ? room.height() : scaledToText(leastPageHeight));
}

QSize SessionView::minimumSizeHint() const {
  return {scaledToText(leastWidth), m_sides->minimumSize().height()};
}

void SessionView::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  const int aside = std::max(scaledToText(leastAsideWidth), m_aside->minimumSize().width());
  const bool isNarrow = width() < scaledPageRoom().width() + gap + aside;
  if (isNarrow != (m_sides->direction() == QBoxLayout::TopToBottom)) turn(isNarrow);
}

// Above the summary, and as wide as it.
void SessionView::addPreview() {
  m_preview = new JobPreview(m_session, m_path, this);
  m_preview->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
  m_preview->setMinimumHeight(scaledToText(leastPreviewHeight));
  m_aside->insertWidget(0, m_preview, previewShare);
}

// The window opens with the panel, where there is one that shows something; the other pages are
// made when asked for.
void SessionView::addPages() {
  PrintSession &session = m_session;
  const auto general = [&session](QWidget *parent) { return new GeneralPage(session, parent); };
  m_pages->addTab(new LazyPage(general, m_pages), tr("General"));
  addPanelPages();
  m_pages->setCurrentIndex(m_pages->count() > 1 ? 1 : 0);
  const QStringList claimed = session.panels().claimedOptions();
  const auto options = [&session, claimed](QWidget *parent) {
    return new OptionsPage(session, claimed, parent);
  };
  m_pages->addTab(new LazyPage(options, m_pages), tr("More Options"));
}

void SessionView::addPanelPages() {
  for (const PanelPlace &place : m_session.panels().places()) {
    if (place.hasContent) m_pages->addTab(new PanelPage(place.container, m_pages), place.name);
  }
}

// The tabs' own keys work from their pages only.
void SessionView::addPageKeys() {
  const QList<std::pair<QKeySequence::StandardKey, int>> ways{{QKeySequence::NextChild, 1},
                                                              {QKeySequence::PreviousChild, -1}};
  for (const auto &[keys, pages] : ways) {
    auto *shortcut = new QShortcut(this);
    shortcut->setKeys(QKeySequence::keyBindings(keys));
    connect(shortcut, &QShortcut::activated, this, [this, pages = pages] { turnPage(pages); });
  }
}

// The keyboard stays where it is, unless that page goes.
void SessionView::turnPage(int pages) {
  const int count = m_pages->count();
  const bool isInside = m_pages->currentWidget()->isAncestorOf(QApplication::focusWidget());
  if (isInside) m_pages->tabBar()->setFocus(Qt::TabFocusReason);
  m_pages->setCurrentIndex((m_pages->currentIndex() + pages + count) % count);
}

void SessionView::showEvent(QShowEvent *event) {
  QWidget::showEvent(event);
  assignTabMnemonics(window(), nullptr);
}

void SessionView::setDocument(const DocumentInfo &only, bool hasAny) {
  if (only.path != m_path) {
    m_path = only.path;
    delete m_preview;
    addPreview();
  }
  m_preview->setHasDocument(hasAny);
}

// After the first paint: which lines of a session that began with a ticket are changed ones takes a
// second set of panels to tell, and nobody waits for the window because of that.
void SessionView::paintEvent(QPaintEvent *event) {
  QWidget::paintEvent(event);
  if (std::exchange(m_isPainted, true) || m_session.defaultSummary()) return;
  QTimer::singleShot(0, this, &SessionView::learnDefaults);
}

void SessionView::learnDefaults() {
  m_session.learnDefaultSummary();
  followSession();
}

void SessionView::followSession() {
  m_summary->show(summaryLines(m_session));
}

}  // namespace orvek
