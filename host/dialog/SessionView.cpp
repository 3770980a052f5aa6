// SPDX-License-Identifier: Apache-2.0
// Pages at the left, summary at the right.

#include "host/dialog/SessionView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

#include "host/dialog/LazyPage.h"
#include "host/dialog/PanelPage.h"
#include "host/dialog/SummaryView.h"
#include "host/preview/BookletPreview.h"
#include "host/settings/GeneralPage.h"
#include "host/settings/OptionsPage.h"
#include "host/ticket/BookletSettings.h"

namespace orvek {
namespace {

constexpr int gap = 12;
constexpr int previewHeight = 216;

}  // namespace

SessionView::SessionView(PrintSession &session, const DocumentInfo &document, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_document(document),
      m_pages(new QTabWidget(this)),
      m_summary(new SummaryView(this)) {
  m_pages->setObjectName(QStringLiteral("pages"));
  m_pages->setAccessibleName(tr("Settings"));
  m_pages->setDocumentMode(true);
  addPages();
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(gap);
  row->addWidget(m_pages, 1);
  row->addLayout(buildAside());
  connect(&session, &PrintSession::changed, this, &SessionView::followSession);
  followSession();
}

QLayout *SessionView::buildAside() {
  auto *title = new QLabel(tr("Summary"), this);
  // The list begins where the pages do.
  title->setFixedHeight(m_pages->tabBar()->sizeHint().height() - 1);
  m_aside = new QVBoxLayout;
  m_aside->setSpacing(0);
  m_aside->addWidget(title);
  m_aside->addWidget(m_summary, 1);
  return m_aside;
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
  m_document = document;
  delete std::exchange(m_preview, nullptr);
  updatePreview();
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
  updatePreview();
}

// Below the summary, where an open booklet section makes the window tall enough for both.
void SessionView::updatePreview() {
  const bool isBooklet = bookletSettings(m_session.ticket().values()).enabled;
  if (isBooklet && m_preview == nullptr) {
    m_preview = new BookletPreview(m_session, m_document.pages, m_document.pageSizePoints, this);
    // As wide as the summary; the window is not to grow for it.
    m_preview->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_preview->setFixedHeight(previewHeight);
    m_preview->layout()->setContentsMargins(0, gap, 0, 0);
    m_aside->addWidget(m_preview);
  }
  if (m_preview != nullptr) m_preview->setVisible(isBooklet);
}

}  // namespace orvek
