// SPDX-License-Identifier: Apache-2.0
// Names that stand for streams which are open already.
#pragma once

#include <QString>

namespace orvek {

/// The descriptor behind a name like "/dev/stdin" or "/dev/fd/3", as a shell gives them to
/// programs; -1 for every other name. Opening such a name anew would begin a redirected file from
/// its start, and would not notice that a pipe's writer has gone.
int openStreamNumber(const QString &path);

}  // namespace orvek
