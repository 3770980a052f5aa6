// SPDX-License-Identifier: Apache-2.0
// The button beside the documents' name, and its menu: others, more of them, one less.
#pragma once

#include <QToolButton>

class QMenu;

namespace orvek {

class JobDocuments;

/// Borrows the documents, which must outlive it. Belongs to its parent and lives on the interface's
/// thread. Nothing fails.
class DocumentMenu final : public QToolButton {
  Q_OBJECT

 public:
  DocumentMenu(JobDocuments &documents, QWidget *parent);

 private:
  void open();
  void addRemovals(QMenu *menu);

  JobDocuments &m_documents;
};

}  // namespace orvek
