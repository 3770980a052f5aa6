// SPDX-License-Identifier: Apache-2.0
// Whether a plug-in's code can be nobody's but its owner's.
#pragma once

#include <QString>

#include "platform/system/Result.h"

namespace orvek {

/// Fails (Invalid) with the file or folder and the reason where somebody else than this user and
/// the administrator may put other code in the place of `executable` in the bundle `bundlePath`:
/// where one of them, Info.json or the folder that holds the bundle belongs to somebody else or
/// can be written by others, or a folder above can. A folder where all may write and only owners
/// rename counts as one that others can't write, as far as it holds what is ours. What does not
/// exist is no fault.
Status checkNobodyElseWrites(const QString &bundlePath, const QString &executable);

}  // namespace orvek
