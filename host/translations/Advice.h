// SPDX-License-Identifier: Apache-2.0
// What to do is another thing where nobody writes options: the reasons that say so, in both
// wordings.
#pragma once

#include <QtGlobal>
#include <array>

namespace orvek {

/// A reason of a failure with what to do about it. A failure is made with the command line's
/// wording; a window finds its own (FailureText.h). Both have the same parts. Plain data.
struct Advice {
  const char *atTheCommandLine;
  const char *inTheWindow;
};

inline constexpr Advice noSuchPrinterThere{
    "no such printer on %1; \"orvek-print --list-printers\" lists them",
    QT_TRANSLATE_NOOP("orvek::Failure", "no such printer on %1; choose another one")};

inline constexpr Advice noDefaultPrinter{
    "there is no default printer; name one with -d",
    QT_TRANSLATE_NOOP("orvek::Failure", "there is no default printer; choose one")};

inline constexpr Advice noneOfThatName{
    "there is none of that name; \"orvek-print --list-presets\" lists them",
    QT_TRANSLATE_NOOP("orvek::Failure", "there is none of that name; choose another one")};

inline constexpr std::array advices{noSuchPrinterThere, noDefaultPrinter, noneOfThatName};

}  // namespace orvek
