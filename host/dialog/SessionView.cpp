// SPDX-License-Identifier: Apache-2.0
// Pages at the left, summary at the right.

#include "host/dialog/SessionView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "host/dialog/LazyPage.h"
#include "host/dialog/PanelPage.h"
#include "host/dialog/SummaryView.h"
#include "host/settings/GeneralPage.h"
#include "host/settings/OptionsPage.h"

namespace orvek {
namespace {

constexpr int gap = 12;

}  // namespace

SessionView::SessionView(PrintSession &session, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_pages(new QTabWidget(this)),
      m_summary(new SummaryView(this)) {
  m_pages->setObjectName(QStringLiteral("pages"));
  m_pages->setAccessibleName(tr("Settings"));
  addPages();
  auto *summaryTitle = new QLabel(tr("Summary"), this);
  // The list begins where the pages do.
  summaryTitle->setFixedHeight(m_pages->tabBar()->sizeHint().height() - 1);
  auto *aside = new QVBoxLayout;
  aside->setSpacing(0);
  aside->addWidget(summaryTitle);
  aside->addWidget(m_summary, 1);
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(gap);
  row->addWidget(m_pages, 1);
  row->addLayout(aside);
  connect(&session, &PrintSession::changed, this, &SessionView::followSession);
  followSession();
}

// The window opens with the panel, where there is one; the other pages are made when asked for.
void SessionView::addPages() {
  PrintSession &session = m_session;
  const auto general = [&session](QWidget *parent) { return new GeneralPage(session, parent); };
  m_pages->addTab(new LazyPage(general, m_pages), tr("General"));
  addPanelPages();
  m_pages->setCurrentIndex(m_pages->count() > 1 ? 1 : 0);
  QStringList claimed;
  for (const auto &hosted : session.panels()) claimed << hosted->claimedOptions();
  const auto options = [&session, claimed](QWidget *parent) {
    return new OptionsPage(session, claimed, parent);
  };
  m_pages->addTab(new LazyPage(options, m_pages), tr("More Options"));
}

void SessionView::addPanelPages() {
  for (const auto &hosted : m_session.panels()) {
    if (hosted->container() == nullptr || hosted->view() == nullptr) continue;
    m_pages->addTab(new PanelPage(hosted->container(), m_pages), hosted->name());
  }
}

void SessionView::followSession() {
  m_summary->show(summaryLines(m_session));
}

}  // namespace orvek
