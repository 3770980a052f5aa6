// SPDX-License-Identifier: Apache-2.0
// What comes out of the printer: the sheets of the job, with the document's own pages on them.
#pragma once

#include <QTimer>
#include <QWidget>

#include "host/preview/JobLayout.h"
#include "host/preview/PagePictures.h"
#include "host/session/PrintSession.h"

class QLabel;
class QToolButton;

namespace orvek {

class SheetsView;

/// The preview with its caption and the buttons below it. Belongs to its parent, owns its child
/// controls, and lives on the interface's thread; documents are read and pages drawn on threads of
/// its own, which end before it does. Nothing fails: what can't be read has a sample in its place.
class JobPreview final : public QWidget {
  Q_OBJECT

 public:
  /// `document` is a file's path. Empty, or nothing that pages could be read of: a sample stands
  /// for it. One that comes once is not read here: its pages are still to come. Borrows the
  /// session, which must outlive the preview.
  JobPreview(PrintSession &session, const QString &document, QWidget *parent = nullptr);
  ~JobPreview() override;

  /// Whether there is a document at all; there is, unless it is said otherwise. Without one the
  /// caption says so.
  void setHasDocument(bool has);

  /// Whether all that can be seen is there. Nothing is before the first show has been painted.
  bool isComplete() const;

  const std::vector<imposition::PrintedSide> &sides() const;

  /// Of its own height, and as wide as whoever shows it.
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  void build();
  void begin();
  QWidget *buildBar();
  QToolButton *severalButton(QWidget *bar);
  void followSession();
  void read();
  void takeDocument(int generation, const Result<DocumentPages> &document);
  void layOut();
  void takeSides(int generation, std::vector<imposition::PrintedSide> sides);
  void showSide();
  void showCaption();
  QString caption() const;
  QString sheetsInWords() const;
  bool isTwoSided() const;

  PrintSession &m_session;
  QString m_path;
  bool m_hasDocument = true;
  imposition::SheetJob m_job;
  int m_copies = 1;
  PrintedWith m_with;
  DocumentPages m_document;
  bool m_isPainted = false;
  bool m_hasBegun = false;
  /// Pages are known, or known to be none.
  bool m_isRead = false;
  bool m_isSample = true;
  bool m_isLaidOut = true;
  /// Counts what was begun; only the last counts.
  int m_reading = 0;
  int m_layingOut = 0;
  /// The reading under way.
  std::shared_ptr<std::atomic<bool>> m_cancelled;
  PagePictures *m_pictures;
  SheetsView *m_view;
  QLabel *m_caption;
  QLabel *m_place;
  QToolButton *m_back;
  QToolButton *m_forward;
  QToolButton *m_several;
  /// Goes first: it works for all of the above.
  QThreadPool m_pool;
};

}  // namespace orvek
