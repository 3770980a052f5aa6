// SPDX-License-Identifier: Apache-2.0
// What the opener of PDFs is called with, and what it answers. Without Qt, for both sides.
#pragma once

namespace orvek::opener {

/// Called with "DOCUMENT", to look at it, or with "DOCUMENT PASSWORDS COPY", to write a copy of it
/// that needs no password. All three are paths; PASSWORDS holds the password, in UTF-8, and COPY is
/// there already. The answer is one line on standard output, this word with a number behind it, or
/// one of those below.
inline constexpr const char *pagesWord = "pages";

/// No password that was given opens it.
inline constexpr const char *lockedWord = "locked";

/// It can't be repaired.
inline constexpr const char *damagedWord = "damaged";

/// It can be read, and has not a single page.
inline constexpr const char *noPagesWord = "no-pages";

/// The copy could not be written.
inline constexpr const char *unwrittenWord = "unwritten";

}  // namespace orvek::opener
