// SPDX-License-Identifier: Apache-2.0
// Pop-up menus over QComboBox. A title is kept in a role of its own, since a display role makes no
// difference between a null and an empty text.

#include "platform/ui/PopUps.h"

#include <QComboBox>
#include <QSignalBlocker>
#include <QStandardItemModel>

#include "platform/system/PDEObject.h"

namespace orvek {
namespace {

constexpr int objectRole = Qt::UserRole;
constexpr int titleRole = Qt::UserRole + 1;
constexpr int identifierRole = Qt::UserRole + 2;
constexpr const char *autoenablesProperty = "orvekAutoenablesItems";

bool hasItem(const QComboBox *popUp, int index) {
  return popUp != nullptr && index >= 0 && index < popUp->count();
}

QStandardItem *standardItem(const QComboBox *popUp, int index) {
  if (!hasItem(popUp, index)) return nullptr;
  const auto *model = qobject_cast<const QStandardItemModel *>(popUp->model());
  return model == nullptr ? nullptr : model->item(index);
}

}  // namespace

void removeAllItems(QComboBox *popUp) {
  if (popUp == nullptr) return;
  const QSignalBlocker quiet(popUp);
  popUp->clear();
}

void addItem(QComboBox *popUp, const PopUpItem &item) {
  if (popUp == nullptr) return;
  const QSignalBlocker quiet(popUp);
  popUp->addItem(item.title);
  const int index = popUp->count() - 1;
  popUp->setItemData(index, QVariant::fromValue(item.representedObject), objectRole);
  popUp->setItemData(index, item.title, titleRole);
  popUp->setItemData(index, item.identifier, identifierRole);
}

int numberOfItems(const QComboBox *popUp) {
  return popUp == nullptr ? 0 : popUp->count();
}

int indexOfSelectedItem(const QComboBox *popUp) {
  return popUp == nullptr ? 0 : popUp->currentIndex();
}

void selectItemAtIndex(QComboBox *popUp, int index) {
  if (index != noItem && !hasItem(popUp, index)) return;
  if (popUp == nullptr) return;
  const QSignalBlocker quiet(popUp);
  popUp->setCurrentIndex(index);
}

void selectItemWithTitle(QComboBox *popUp, const QString &title) {
  for (int i = 0; i < numberOfItems(popUp); ++i) {
    const QString candidate = itemTitle(popUp, i);
    if (candidate != title || candidate.isNull() != title.isNull()) continue;
    selectItemAtIndex(popUp, i);
    return;
  }
}

QString itemTitle(const QComboBox *popUp, int index) {
  if (!hasItem(popUp, index)) return {};
  const QVariant own = popUp->itemData(index, titleRole);
  // Items that the interface resource brought along know only their display text.
  return own.isValid() ? own.toString() : popUp->itemText(index);
}

QString itemIdentifier(const QComboBox *popUp, int index) {
  return hasItem(popUp, index) ? popUp->itemData(index, identifierRole).toString() : QString();
}

const PDEObject *representedObject(const QComboBox *popUp, int index) {
  if (!hasItem(popUp, index)) return nullptr;
  return popUp->itemData(index, objectRole).value<const PDEObject *>();
}

void setAutoenablesItems(QComboBox *popUp, bool automatic) {
  if (popUp != nullptr) popUp->setProperty(autoenablesProperty, automatic);
}

bool autoenablesItems(const QComboBox *popUp) {
  if (popUp == nullptr) return false;
  const QVariant set = popUp->property(autoenablesProperty);
  return !set.isValid() || set.toBool();
}

void setItemEnabled(QComboBox *popUp, int index, bool enabled) {
  if (QStandardItem *item = standardItem(popUp, index)) item->setEnabled(enabled);
}

bool isItemEnabled(const QComboBox *popUp, int index) {
  const QStandardItem *item = standardItem(popUp, index);
  return item != nullptr && item->isEnabled();
}

}  // namespace orvek
