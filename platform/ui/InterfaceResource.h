// SPDX-License-Identifier: Apache-2.0
// Interface resources: Qt Designer files of a bundle, loaded at run time with an owner.
#pragma once

#include <QString>

class QObject;

namespace orvek {

class Bundle;

/// Loads NAME.ui from the bundle and connects it to its owner:
/// - outlets: each named widget is stored in the owner's property of that name, where the owner has
///   one of a fitting type;
/// - wiring: actions and text delegates as the controls state them (platform/ui/Actions.h);
/// - texts that no owner sets: tool tips and accessible names are keys of the bundle's table, or
///   stay as they are.
/// The loaded tree dies with the owner, or before it with whoever deletes its root. False where the
/// bundle is absent, has no such resource, or the resource does not load; the reason goes to the
/// log unless the bundle is absent. The owner's properties are left alone then.
bool loadInterface(const Bundle *bundle, const QString &name, QObject *owner);

/// Makes the controls of a bundle's interface resource before anybody loads it, while there is
/// nothing else to do: as long as this lives, loadInterface() gives that tree to the first owner
/// who asks. A bundle that has several is left alone: nobody knows which of them will be wanted.
/// What is wrong with one is told by loadInterface(). Owns the tree until then. For the interface's
/// thread; one at a time for each bundle.
class InterfaceAhead {
 public:
  explicit InterfaceAhead(const Bundle &bundle);
  ~InterfaceAhead();
  InterfaceAhead(const InterfaceAhead &) = delete;
  InterfaceAhead &operator=(const InterfaceAhead &) = delete;

 private:
  QString m_path;
};

}  // namespace orvek
