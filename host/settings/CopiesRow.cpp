// SPDX-License-Identifier: Apache-2.0
// A number field and a box in one row.

#include "host/settings/CopiesRow.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QSpinBox>

namespace orvek {
namespace {

constexpr int gap = 12;

}  // namespace

CopiesRow::CopiesRow(QWidget *parent)
    : QWidget(parent), m_copies(new QSpinBox(this)), m_collate(new QCheckBox(this)) {
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
}

void CopiesRow::setSettings(const JobSettings &settings) {
  const QSignalBlocker silent(m_copies);
  if (m_copies->value() != settings.copies) m_copies->setValue(settings.copies);
  m_collate->setChecked(settings.collate);
  m_collate->setEnabled(settings.copies > 1);
}

}  // namespace orvek
