// SPDX-License-Identifier: Apache-2.0
// Lays out the choosers.

#include "host/dialog/ChooserRow.h"

#include <QComboBox>
#include <QHBoxLayout>

#include "host/dialog/PrinterChooser.h"
#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

constexpr int gapBetween = 18;
constexpr int lineGap = 4;
constexpr int labelGap = 6;

}  // namespace

ChooserRow::ChooserRow(const ServerAccess &access, const std::shared_ptr<PresetStore> &store,
                       const PresetChooser::Snapshot &snapshot, QWidget *parent)
    : FlowRow(gapBetween, lineGap, parent), m_printers(new PrinterChooser(access, this)) {
  addGroup(m_printers, m_printers->menu(), tr("P&rinter:"));
  if (!store) return;
  m_presets = new PresetChooser(store, snapshot, this);
  addGroup(m_presets, m_presets->menu(), tr("Pr&eset:"));
}

// What stands below a menu has no part in the height of its label.
void ChooserRow::addGroup(QWidget *chooser, QWidget *menu, const QString &text) {
  auto *group = new QWidget(this);
  auto *label = new PlainLabel(text, group);
  label->setBuddy(menu);
  // Screen readers look for labels where the menu itself stands.
  auto *spoken = new PlainLabel(label->text().remove(QLatin1Char('&')), menu->parentWidget());
  spoken->setBuddy(menu);
  spoken->hide();
  label->setFixedHeight(menu->sizeHint().height());
  auto *row = new QHBoxLayout(group);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(labelGap);
  row->addWidget(label, 0, Qt::AlignTop);
  row->addWidget(chooser, 1, Qt::AlignTop);
  add(group);
}

}  // namespace orvek
