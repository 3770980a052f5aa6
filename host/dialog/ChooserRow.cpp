// SPDX-License-Identifier: Apache-2.0
// Lays out the choosers.

#include "host/dialog/ChooserRow.h"

#include <QComboBox>
#include <QGridLayout>

#include "host/dialog/PrinterChooser.h"
#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

constexpr int gapBetween = 12;
constexpr int labelGap = 6;

}  // namespace

ChooserRow::ChooserRow(const ServerAccess &access, const std::shared_ptr<PresetStore> &store,
                       const PresetChooser::Snapshot &snapshot, QWidget *parent)
    : QWidget(parent), m_printers(new PrinterChooser(access, this)) {
  auto *grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(labelGap);
  add(m_printers, m_printers->menu(), tr("P&rinter:"), 0);
  if (!store) return;
  m_presets = new PresetChooser(store, snapshot, this);
  grid->setColumnMinimumWidth(2, gapBetween);
  add(m_presets, m_presets->menu(), tr("Pr&eset:"), 3);
}

// What stands below a menu has no part in the height of its label.
void ChooserRow::add(QWidget *chooser, QWidget *menu, const QString &text, int column) {
  auto *label = new PlainLabel(text, this);
  label->setBuddy(menu);
  label->setFixedHeight(menu->sizeHint().height());
  auto *grid = static_cast<QGridLayout *>(layout());
  grid->addWidget(label, 0, column, Qt::AlignTop);
  grid->addWidget(chooser, 0, column + 1, Qt::AlignTop);
}

}  // namespace orvek
