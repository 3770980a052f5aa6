// SPDX-License-Identifier: Apache-2.0
// Carries actions out on a session, as the user's hand would and only where it could.
#pragma once

#include "host/cli/Action.h"
#include "host/session/PrintSession.h"

namespace orvek {

/// Does one action. A Usage failure, and nothing done, where a user couldn't do it: the control is
/// unknown, hidden or disabled (by itself or through a view around it), the item is missing or
/// disabled, or the value is none for this control.
Status runAction(PrintSession &session, const Action &action);

}  // namespace orvek
