// SPDX-License-Identifier: Apache-2.0
// A pop-up of names and a button with what can be done to them.

#include "host/dialog/PresetChooser.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QMenu>
#include <QToolButton>
#include <utility>

#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

// What an item stands for; a preset's item carries its name besides.
enum ItemKind { Nothing, LastUsed, Saved };
constexpr int kindRole = Qt::UserRole;

constexpr int usualCharacters = 14;
constexpr int leastWidth = 80;

}  // namespace

PresetChooser::PresetChooser(std::shared_ptr<PresetStore> store, Snapshot snapshot, QWidget *parent)
    : QWidget(parent),
      m_store(std::move(store)),
      m_snapshot(std::move(snapshot)),
      m_menu(new QComboBox(this)),
      m_button(new QToolButton(this)) {
  m_menu->setObjectName(QStringLiteral("presetMenu"));
  m_menu->setAccessibleName(tr("Preset"));
  m_menu->setMinimumContentsLength(usualCharacters);
  m_menu->setMinimumWidth(leastWidth);
  m_menu->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  buildActions();
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(m_menu, 1);
  row->addWidget(m_button);
  setFocusProxy(m_menu);
  connect(m_menu, &QComboBox::activated, this, &PresetChooser::pick);
  reload({});
}

void PresetChooser::buildActions() {
  m_button->setObjectName(QStringLiteral("presetButton"));
  m_button->setText(QStringLiteral("…"));
  m_button->setFixedHeight(m_menu->sizeHint().height());
  m_button->setAccessibleName(tr("Save and manage presets"));
  m_button->setToolTip(tr("Save and manage presets"));
  m_button->setFocusPolicy(Qt::StrongFocus);
  auto *menu = new QMenu(m_button);
  connect(menu->addAction(tr("&Save As…")), &QAction::triggered, this, &PresetChooser::saveAs);
  m_rename = menu->addAction(tr("&Rename…"));
  connect(m_rename, &QAction::triggered, this, &PresetChooser::rename);
  m_remove = menu->addAction(tr("&Delete"));
  connect(m_remove, &QAction::triggered, this, &PresetChooser::remove);
  connect(m_button, &QToolButton::clicked, this,
          [this, menu] { menu->popup(m_button->mapToGlobal(QPoint(0, m_button->height()))); });
}

void PresetChooser::reload(const QString &queue) {
  m_queue = queue;
  const QString shown = currentName();
  const PresetListing listing = m_store->list();
  m_menu->clear();
  m_menu->addItem(tr("None"), Nothing);
  if (!queue.isEmpty()) {
    const Result<std::optional<Preset>> last = m_store->lastUsed(queue);
    if (last && last.value()) m_menu->addItem(tr("Last used"), LastUsed);
    if (!last) Q_EMIT failed(last.failure());
  }
  for (const QString &name : listing.names) m_menu->addItem(name, Saved);
  for (const Failure &failure : listing.damaged) Q_EMIT failed(failure);
  show(shown);
}

QString PresetChooser::currentName() const {
  return m_menu->currentData(kindRole).toInt() == Saved ? m_menu->currentText() : QString();
}

void PresetChooser::show(const QString &name) {
  int found = 0;
  for (int i = 0; i < m_menu->count() && !name.isNull(); ++i) {
    if (m_menu->itemData(i, kindRole).toInt() == Saved && m_menu->itemText(i) == name) found = i;
  }
  m_menu->setCurrentIndex(found);
  updateActions();
}

void PresetChooser::updateActions() {
  const bool isPreset = !currentName().isNull();
  m_rename->setEnabled(isPreset);
  m_remove->setEnabled(isPreset);
}

void PresetChooser::pick(int) {
  updateActions();
  if (m_menu->currentData(kindRole).toInt() == LastUsed) {
    const Result<std::optional<Preset>> last = m_store->lastUsed(m_queue);
    if (!last) Q_EMIT failed(last.failure());
    if (last && last.value()) Q_EMIT picked(*last.value());
    return;
  }
  if (currentName().isNull()) return;
  const Result<Preset> preset = m_store->load(currentName());
  if (!preset) {
    Q_EMIT failed(preset.failure());
    return;
  }
  Q_EMIT picked(preset.value());
}

QString PresetChooser::askForName(const QString &title, const QString &proposal) {
  bool isGiven = false;
  const QString name = QInputDialog::getText(this, title, tr("Name of the preset:"),
                                             QLineEdit::Normal, proposal, &isGiven);
  return isGiven ? name.trimmed() : QString();
}

bool PresetChooser::mayReplace(const QString &name) {
  if (!m_store->list().names.contains(name)) return true;
  return isConfirmed(this, tr("Save Preset"),
                     tr("There is a preset “%1” already. Replace it?").arg(name));
}

void PresetChooser::saveAs() {
  const QString name = askForName(tr("Save Preset"), currentName());
  if (name.isNull() || !mayReplace(name)) return;
  if (const Status saved = m_store->save(m_snapshot(name)); !saved) {
    Q_EMIT failed(saved.failure());
    return;
  }
  reload(m_queue);
  show(name);
}

void PresetChooser::rename() {
  const QString old = currentName();
  const QString name = askForName(tr("Rename Preset"), old);
  if (name.isNull() || name == old) return;
  if (const Status renamed = m_store->rename(old, name); !renamed) {
    Q_EMIT failed(renamed.failure());
    return;
  }
  reload(m_queue);
  show(name);
}

void PresetChooser::remove() {
  const QString name = currentName();
  if (!isConfirmed(this, tr("Delete Preset"), tr("Delete the preset “%1”?").arg(name))) return;
  if (const Status removed = m_store->remove(name); !removed) Q_EMIT failed(removed.failure());
  reload(m_queue);
}

}  // namespace orvek
