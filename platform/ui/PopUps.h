// SPDX-License-Identifier: Apache-2.0
// The null-safe vocabulary of pop-up menus. Items keep an absent title apart from an empty one, may
// carry an object and may be disabled one by one.
#pragma once

#include <QString>

class PDEObject;
class QComboBox;

namespace orvek {

/// What stands for "no item" where an index is asked for.
inline constexpr int noItem = -1;

/// One item to add. `representedObject` is borrowed and may be null; `identifier` names the item
/// for scripts (a choice's keyword) and may be null.
struct PopUpItem {
  QString title = {};
  const PDEObject *representedObject = nullptr;
  QString identifier = {};
};

void removeAllItems(QComboBox *popUp);

/// Appends; the first item of an empty menu becomes the selected one.
void addItem(QComboBox *popUp, const PopUpItem &item);

int numberOfItems(const QComboBox *popUp);

/// The selected item's index, or noItem.
int indexOfSelectedItem(const QComboBox *popUp);

/// Selects the item; noItem deselects; an index that the menu lacks leaves the selection alone.
void selectItemAtIndex(QComboBox *popUp, int index);

/// Selects the first item with exactly this title (absent equals absent); without one the selection
/// stays.
void selectItemWithTitle(QComboBox *popUp, const QString &title);

/// The title, null where the item has none or does not exist.
QString itemTitle(const QComboBox *popUp, int index);
QString itemIdentifier(const QComboBox *popUp, int index);
const PDEObject *representedObject(const QComboBox *popUp, int index);

/// Whether the menu enables its items by itself whenever it opens (as a fresh one does), or leaves
/// them as they were set.
void setAutoenablesItems(QComboBox *popUp, bool automatic);
bool autoenablesItems(const QComboBox *popUp);

/// An item that the menu lacks is skipped, and reads as disabled.
void setItemEnabled(QComboBox *popUp, int index, bool enabled);
bool isItemEnabled(const QComboBox *popUp, int index);

}  // namespace orvek
