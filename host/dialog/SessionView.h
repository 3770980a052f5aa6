// SPDX-License-Identifier: Apache-2.0
// Everything of the window that belongs to one printing session: its pages, the preview and the
// summary. Another printer is another session, and gets another view.
#pragma once

#include <QWidget>

#include "host/jobs/DocumentInfo.h"
#include "host/session/PrintSession.h"

class QBoxLayout;
class QTabWidget;
class QVBoxLayout;

namespace orvek {

class JobPreview;
class SummaryView;

/// Borrows the session, which must outlive the view, and its panels' containers. Belongs to its
/// parent, owns its child controls, and lives on the interface's thread. Nothing fails.
class SessionView final : public QWidget {
  Q_OBJECT

 public:
  SessionView(PrintSession &session, const DocumentInfo &document, QWidget *parent);

  /// `only`: of an only document; `hasAny`: whether there is one, or several.
  void setDocument(const DocumentInfo &only, bool hasAny);

  /// Of a narrow window's.
  QSize minimumSizeHint() const override;

  /// What it shows fits any height that it is given.
  bool hasHeightForWidth() const override { return false; }

 Q_SIGNALS:
  /// Another page is on show.
  void pageTurned();

 protected:
  void showEvent(QShowEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;

 private:
  void addPages();
  void addPanelPages();
  void addPageKeys();
  void turnPage(int pages);
  QBoxLayout *buildAside();
  void turn(bool isNarrow);
  void followSession();
  void learnDefaults();
  void addPreview();

  PrintSession &m_session;
  bool m_isPainted = false;
  /// The document.
  QString m_path;
  QTabWidget *m_pages;
  /// Pages beside preview and summary, or above them.
  QBoxLayout *m_sides = nullptr;
  SummaryView *m_summary;
  QVBoxLayout *m_aside = nullptr;
  /// Stands above the summary.
  JobPreview *m_preview = nullptr;
};

}  // namespace orvek
