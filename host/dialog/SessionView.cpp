// SPDX-License-Identifier: Apache-2.0
// Pages at the left; at the right the preview, and the summary below it.

#include "host/dialog/SessionView.h"

#include <QHBoxLayout>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

#include "host/dialog/LazyPage.h"
#include "host/dialog/PanelPage.h"
#include "host/dialog/SummaryView.h"
#include "host/preview/JobPreview.h"
#include "host/settings/GeneralPage.h"
#include "host/settings/OptionsPage.h"
#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

constexpr int gap = 12;
constexpr int previewHeight = 272;
constexpr int previewShare = 3;
constexpr int summaryShare = 1;
// Of the room beyond what both sides want: settings are no better to read for being wide, sheets
// are.
constexpr int pagesShare = 1;
constexpr int asideShare = 2;

}  // namespace

SessionView::SessionView(PrintSession &session, const DocumentInfo &document, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_path(document.path),
      m_pages(new QTabWidget(this)),
      m_summary(new SummaryView(this)) {
  m_pages->setObjectName(QStringLiteral("pages"));
  m_pages->setAccessibleName(tr("Settings"));
  m_pages->setDocumentMode(true);
  addPages();
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(gap);
  row->addWidget(m_pages, pagesShare);
  row->addLayout(buildAside(), asideShare);
  connect(&session, &PrintSession::changed, this, &SessionView::followSession);
  followSession();
}

QLayout *SessionView::buildAside() {
  auto *title = new PlainLabel(tr("Summary"), this);
  // As high as a tab, so that both sides of the window have the same headings.
  title->setFixedHeight(m_pages->tabBar()->sizeHint().height() - 1);
  m_aside = new QVBoxLayout;
  m_aside->setSpacing(0);
  m_aside->addWidget(title);
  // It scrolls; what it would like to have is the preview's.
  m_summary->setSizePolicy(m_summary->sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
  m_summary->setMinimumHeight(m_summary->minimumSizeHint().height());
  m_aside->addWidget(m_summary, summaryShare);
  addPreview();
  return m_aside;
}

// Above the summary, and as wide as it; the window is not to grow for it.
void SessionView::addPreview() {
  m_preview = new JobPreview(m_session, m_path, this);
  m_preview->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  m_preview->setMinimumHeight(previewHeight);
  m_aside->insertWidget(0, m_preview, previewShare);
}

// The window opens with the panel, where there is one; the other pages are made when asked for.
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
    m_pages->addTab(new PanelPage(place.container, m_pages), place.name);
  }
}

void SessionView::setDocument(const DocumentInfo &document) {
  if (document.path == m_path) return;
  m_path = document.path;
  delete m_preview;
  addPreview();
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
