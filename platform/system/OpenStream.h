// SPDX-License-Identifier: Apache-2.0
// Names that stand for streams which are open already, and what else is written into as it is.
#pragma once

#include <QString>

namespace orvek {

/// The descriptor behind a name like "/dev/stdin" or "/dev/fd/3", as a shell gives them to
/// programs; -1 for every other name. Opening such a name anew would begin a redirected file from
/// its start, and would not notice that a pipe's writer has gone.
int openStreamNumber(const QString &path);

/// A descriptor that writes into what is there: a copy of the open stream that `path` stands for,
/// or the pipe or device of that name opened. The caller closes it. Below zero where it fails;
/// errno says why.
int openForWriting(const QString &path);

}  // namespace orvek
