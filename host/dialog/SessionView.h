// SPDX-License-Identifier: Apache-2.0
// Everything of the window that belongs to one printing session: its pages and its summary. Another
// printer is another session, and gets another view.
#pragma once

#include <QWidget>

#include "host/session/PrintSession.h"

class QTabWidget;

namespace orvek {

class SummaryView;

/// Borrows the session, which must outlive the view, and its panels' containers.
class SessionView final : public QWidget {
  Q_OBJECT

 public:
  SessionView(PrintSession &session, QWidget *parent);

 private:
  void addPages();
  void addPanelPages();
  void followSession();

  PrintSession &m_session;
  QTabWidget *m_pages;
  SummaryView *m_summary;
};

}  // namespace orvek
