// SPDX-License-Identifier: Apache-2.0
// A pop-up of names and a button with what can be done to them.

#include "host/dialog/PresetChooser.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QMenu>
#include <QToolButton>
#include <utility>

#include "host/presets/PresetName.h"
#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

// Of each item: the kind of entry that it stands for, and of a preset its name.
constexpr int kindRole = Qt::UserRole;
constexpr int nameRole = Qt::UserRole + 1;

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
  menu->addSeparator();
  m_remember = menu->addAction(tr("Remember &Last Settings"));
  m_remember->setObjectName(QStringLiteral("rememberSettings"));
  m_remember->setCheckable(true);
  m_remember->setChecked(m_store->remembers());
  connect(m_remember, &QAction::triggered, this, &PresetChooser::setRemembers);
  // Another window may have been told otherwise.
  connect(menu, &QMenu::aboutToShow, this,
          [this] { m_remember->setChecked(m_store->remembers()); });
  connect(m_button, &QToolButton::clicked, this,
          [this, menu] { menu->popup(m_button->mapToGlobal(QPoint(0, m_button->height()))); });
}

void PresetChooser::reload(const QString &queue) {
  const bool isOtherQueues = m_shown.kind == PresetEntry::Kind::LastUsed && queue != m_queue;
  m_queue = queue;
  if (isOtherQueues) m_shown = {};
  listEntries();
  const bool isChanged = m_isChanged;
  show(m_shown);
  setChanged(isChanged);
}

void PresetChooser::listEntries() {
  const PresetListing listing = m_store->list();
  m_menu->clear();
  m_menu->addItem(tr("None"), static_cast<int>(PresetEntry::Kind::None));
  if (!m_queue.isEmpty()) {
    const Result<std::optional<Preset>> last = m_store->lastUsed(m_queue);
    if (last && last.value()) {
      m_menu->addItem(tr("Last used"), static_cast<int>(PresetEntry::Kind::LastUsed));
    }
    if (!last) Q_EMIT failed(last.failure());
  }
  for (const QString &name : listing.names) {
    m_menu->addItem(name, static_cast<int>(PresetEntry::Kind::Saved));
    m_menu->setItemData(m_menu->count() - 1, name, nameRole);
  }
  for (const Failure &failure : listing.damaged) Q_EMIT failed(failure);
}

PresetEntry PresetChooser::entryAt(int row) const {
  return {static_cast<PresetEntry::Kind>(m_menu->itemData(row, kindRole).toInt()),
          m_menu->itemData(row, nameRole).toString()};
}

int PresetChooser::rowOf(const PresetEntry &entry) const {
  for (int row = 0; row < m_menu->count(); ++row) {
    if (entryAt(row) == entry) return row;
  }
  return 0;
}

void PresetChooser::show(const PresetEntry &entry) {
  setChanged(false);
  const int row = rowOf(entry);
  m_shown = entryAt(row);
  m_menu->setCurrentIndex(row);
  updateActions();
}

// None has nothing that could be another by now.
void PresetChooser::setChanged(bool isChanged) {
  m_isChanged = isChanged && m_shown.kind != PresetEntry::Kind::None;
  const bool isSaved = m_shown.kind == PresetEntry::Kind::Saved;
  const QString plain = isSaved ? m_shown.name : tr("Last used");
  const QString text = m_isChanged ? tr("%1 (changed)").arg(plain) : plain;
  const int row = rowOf(m_shown);
  if (row > 0 && m_menu->itemText(row) != text) m_menu->setItemText(row, text);
}

void PresetChooser::updateActions() {
  const bool isPreset = m_shown.kind == PresetEntry::Kind::Saved;
  m_rename->setEnabled(isPreset);
  m_remove->setEnabled(isPreset);
}

Result<Preset> PresetChooser::read(const PresetEntry &entry) const {
  if (entry.kind == PresetEntry::Kind::Saved) return m_store->load(entry.name);
  const Result<std::optional<Preset>> last = m_store->lastUsed(m_queue);
  if (!last) return last.failure();
  // Forgotten meanwhile.
  return last.value().value_or(Preset());
}

void PresetChooser::pick(int row) {
  const PresetEntry entry = entryAt(row);
  if (entry.kind == PresetEntry::Kind::None) {
    show(entry);
    return;
  }
  const Result<Preset> preset = read(entry);
  if (preset) {
    Q_EMIT picked(entry, preset.value());
    return;
  }
  m_menu->setCurrentIndex(rowOf(m_shown));
  Q_EMIT failed(preset.failure());
}

void PresetChooser::setRemembers(bool remembers) {
  if (const Status set = m_store->setRemembers(remembers); !set) Q_EMIT failed(set.failure());
  m_remember->setChecked(m_store->remembers());
  reload(m_queue);
}

QString PresetChooser::askForName(const QString &title, const QString &proposal) {
  bool isGiven = false;
  const QString name = QInputDialog::getText(this, title, tr("Name of the preset:"),
                                             QLineEdit::Normal, proposal, &isGiven);
  return isGiven ? name.trimmed() : QString();
}

bool PresetChooser::isOurs(const QString &name) const {
  const QString given = name.toCaseFolded();
  return given == tr("None").toCaseFolded() || given == tr("Last used").toCaseFolded();
}

bool PresetChooser::mayReplace(const QString &name) {
  if (!m_store->list().names.contains(name)) return true;
  return isConfirmed(this, tr("Save Preset"),
                     tr("There is a preset “%1” already. Replace it?").arg(name));
}

void PresetChooser::saveAs() {
  const QString name = askForName(tr("Save Preset"), m_shown.name);
  if (name.isNull() || !mayReplace(name)) return;
  const Status saved =
      isOurs(name) ? Status(takenPresetName(name)) : m_store->save(m_snapshot(name));
  if (!saved) {
    Q_EMIT failed(saved.failure());
    return;
  }
  listEntries();
  show({PresetEntry::Kind::Saved, name});
  Q_EMIT this->saved();
}

void PresetChooser::rename() {
  const QString old = m_shown.name;
  const QString name = askForName(tr("Rename Preset"), old);
  if (name.isNull() || name == old) return;
  const Status renamed = isOurs(name) ? Status(takenPresetName(name)) : m_store->rename(old, name);
  if (!renamed) {
    Q_EMIT failed(renamed.failure());
    return;
  }
  m_shown.name = name;
  reload(m_queue);
}

void PresetChooser::remove() {
  const QString name = m_shown.name;
  if (!isConfirmed(this, tr("Delete Preset"), tr("Delete the preset “%1”?").arg(name))) return;
  if (const Status removed = m_store->remove(name); !removed) Q_EMIT failed(removed.failure());
  reload(m_queue);
}

}  // namespace orvek
