// SPDX-License-Identifier: Apache-2.0
// A number field and a box in one row.

#include "host/settings/CopiesRow.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

#include "host/settings/FieldNote.h"

namespace orvek {
namespace {

constexpr int gap = 12;

}  // namespace

CopiesRow::CopiesRow(QWidget *parent)
    : QWidget(parent),
      m_copies(new QSpinBox(this)),
      m_collate(new QCheckBox(this)),
      m_note(new FieldNote(QStringLiteral("copiesNote"), nullptr, this)) {
  m_copies->setObjectName(QStringLiteral("copies"));
  m_copies->setRange(1, maximumCopies);
  m_copies->setAccessibleName(tr("Copies"));
  m_collate->setObjectName(QStringLiteral("collate"));
  m_collate->setText(tr("Collate"));
  m_collate->setToolTip(tr("Whole sets one after the other, not all copies of each page"));
  setFocusProxy(m_copies);
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(gap);
  row->addWidget(m_copies);
  row->addWidget(m_collate);
  row->addStretch(1);
  connect(m_copies, &QSpinBox::valueChanged, this, &CopiesRow::copiesPicked);
  connect(m_collate, &QCheckBox::clicked, this, &CopiesRow::collatePicked);
  watchTyping();
}

// What is typed and not taken leaves the number that was there before: that is said, not guessed.
void CopiesRow::watchTyping() {
  const auto *typed = m_copies->findChild<QLineEdit *>();
  connect(typed, &QLineEdit::inputRejected, this, [this] {
    m_note->say(*m_copies,
                tr("From 1 to %1; %2 applies").arg(m_copies->maximum()).arg(m_copies->value()));
  });
  connect(typed, &QLineEdit::textEdited, this, [this, typed] {
    m_note->say(*m_copies, typed->hasAcceptableInput()
                               ? QString()
                               : tr("%1 still applies").arg(m_copies->value()));
  });
  connect(m_copies, &QSpinBox::editingFinished, m_note, &FieldNote::fallSilent);
  connect(m_copies, &QSpinBox::valueChanged, m_note, &FieldNote::fallSilent);
}

void CopiesRow::setSettings(const JobSettings &settings) {
  const QSignalBlocker silent(m_copies);
  if (m_copies->value() != settings.copies) {
    m_copies->setValue(settings.copies);
    m_note->fallSilent();
  }
  m_collate->setChecked(settings.collate);
  m_collate->setEnabled(settings.copies > 1);
}

}  // namespace orvek
