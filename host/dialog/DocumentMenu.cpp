// SPDX-License-Identifier: Apache-2.0
// Makes the menu anew each time: documents come and go.

#include "host/dialog/DocumentMenu.h"

#include <QMenu>

#include "host/dialog/JobDocuments.h"
#include "host/jobs/Document.h"

namespace orvek {
namespace {

constexpr int longestName = 320;

}  // namespace

DocumentMenu::DocumentMenu(JobDocuments &documents, QWidget *parent)
    : QToolButton(parent), m_documents(documents) {
  setObjectName(QStringLiteral("documentMenu"));
  setText(QStringLiteral("…"));
  setAccessibleName(tr("Add and remove documents"));
  setToolTip(tr("Add and remove documents"));
  setFocusPolicy(Qt::StrongFocus);
  connect(this, &QToolButton::clicked, this, &DocumentMenu::open);
  connect(&documents, &JobDocuments::changed, this,
          [this] { setVisible(!m_documents.files().isEmpty()); });
  setVisible(!documents.files().isEmpty());
}

// What comes once can't be read a second time, as a job of several would be.
void DocumentMenu::open() {
  auto *menu = new QMenu(this);
  menu->setObjectName(QStringLiteral("documentActions"));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  QAction *add = menu->addAction(tr("&Add Files…"), &m_documents, &JobDocuments::addFiles);
  add->setEnabled(!isStandardInput(m_documents.files().value(0)));
  menu->addAction(tr("&Choose Other Files…"), &m_documents, &JobDocuments::chooseFiles);
  addRemovals(menu);
  menu->popup(mapToGlobal(QPoint(0, height())));
}

// In the order in which they are printed.
void DocumentMenu::addRemovals(QMenu *menu) {
  const qsizetype count = m_documents.files().size();
  if (count < 2) return;
  menu->addSeparator();
  for (qsizetype place = 0; place < count; ++place) {
    const QString name = documentsInWords({m_documents.files()[place]});
    QString shown = menu->fontMetrics().elidedText(name, Qt::ElideMiddle, longestName);
    shown.replace(QLatin1Char('&'), QLatin1String("&&"));
    menu->addAction(tr("Remove %1. %2").arg(place + 1).arg(shown), &m_documents,
                    [this, place] { m_documents.remove(place); });
  }
}

}  // namespace orvek
