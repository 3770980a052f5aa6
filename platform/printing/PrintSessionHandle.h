// SPDX-License-Identifier: Apache-2.0
// The print session as a panel sees it: something it is lent and passes on, never looks into.
#pragma once

namespace orvek {

/// Base of whatever a host calls its session. Owned by the host; lent to panels on the interface's
/// thread.
class PrintSessionHandle {
 public:
  virtual ~PrintSessionHandle();
};

}  // namespace orvek

/// Borrowed; null where the host has none.
using PMPrintSession = orvek::PrintSessionHandle *;
