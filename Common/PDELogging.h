// SPDX-License-Identifier: Apache-2.0
// Trace lines through the general log: where an operation begins, where it ends, and anything
// between.
#pragma once

#include <QString>

class PDEObject;

/// The format of a line: "TAG self(DESCRIPTION) FORMAT", or "TAG FORMAT" for a null object. A null
/// format counts as an empty one.
QString Format(const PDEObject *object, const char *tag, const char *format);

// Each logs one line, always, in every build: that format, expanded with the arguments. A format is
// printf(3)'s with "%@" for a `const PDEObject *`; "%" in the object's description counts as part
// of the format too, as far as the arguments go.

/// A "BEGIN" line.
void _PDEProlog(const PDEObject *object, const char *format, ...);

/// An "END" line.
void _PDEEpilog(const PDEObject *object, const char *format, ...);

/// A "LOG" line.
void _PDELog(const PDEObject *object, const char *format, ...);
