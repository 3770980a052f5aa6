// SPDX-License-Identifier: Apache-2.0
// Anything that can describe itself in a log line, or stand behind a menu item.
#pragma once

#include <QString>

/// The root of the objects that travel through the platform by reference: lent, never owned by who
/// gets one, and read on the thread it is handed over on.
/// `description` is what "%@" in a log format shows; an absent object shows as "(null)".
class PDEObject {
 public:
  virtual ~PDEObject() = default;
  virtual QString description() const = 0;
};
