// SPDX-License-Identifier: Apache-2.0
// What panels of the printer family share. The sections, each with the source that holds it:
//   1. The printer description    DriverContext.cpp
// Strings are QString, null where absent.
#pragma once

#include <QString>

#include "platform/printing/PPD.h"

// 1. The printer description ---------------------------------------------------------------------

/// The model number: the first run of decimal digits in the value of the PPD attribute "ModelName"
/// (any specifier), as a signed 32-bit number without leading zeros. A sign before it is not part
/// of it; a run beyond 32 bits gives the largest number. "0" for a name without digits; "0000"
/// without a PPD or the attribute, and for a name that is not valid UTF-8.
QString getDeviceModelNumber(ppd_file_t *ppd);

/// Whether the PPD is of the family's own driver: 0 where it has the option "OVKImageSmoothing" or
/// "OVKHasOVRaster" and its manufacturer is exactly "Orvek", else kPMInvalidPDEContext (also for a
/// null PPD, and for one that names no manufacturer).
int MyCheckPDEContextCUPS(ppd_file_t *ppd);
