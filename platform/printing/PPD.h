// SPDX-License-Identifier: Apache-2.0
// The only door to libcups' PPD interface. libcups has deprecated it, and a library of the same
// calls carries it on; changing over means changing this header. Every other file includes this
// one, and before any other header of libcups.
#pragma once

#include <cups/versioning.h>

// The deprecation is known and answered here; a warning at every call would only hide others.
#undef _CUPS_DEPRECATED
#undef _CUPS_DEPRECATED_MSG
#undef _CUPS_DEPRECATED_1_2_MSG
#undef _CUPS_DEPRECATED_1_6_MSG
#undef _CUPS_DEPRECATED_1_7_MSG
#define _CUPS_DEPRECATED
#define _CUPS_DEPRECATED_MSG(text)
#define _CUPS_DEPRECATED_1_2_MSG(text)
#define _CUPS_DEPRECATED_1_6_MSG(text)
#define _CUPS_DEPRECATED_1_7_MSG(text)

#include <cups/ppd.h>
