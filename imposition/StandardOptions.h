// SPDX-License-Identifier: Apache-2.0
// What PPD files and CUPS call the settings that driver, dialog and preview all have to know, and
// what their values mean. CUPS compares these names without regard to case.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

namespace orvek::imposition {

/// Gives a key's value as text; nothing where the job lacks the key. An option that was given
/// without a value, as CUPS does with booleans, has the value "true", or is empty.
using ValueOf = std::function<std::optional<std::string>(const char *key)>;

/// Options of a PPD that print on both sides of a sheet, the most usual first.
inline constexpr std::array duplexOptions{"Duplex", "JCLDuplex", "EFDuplex", "ARDuplex",
                                          "KD03Duplex"};

/// Options of a PPD that choose between color and gray, the most usual first.
inline constexpr std::array colorOptions{"ColorModel", "ColorMode", "ColorEffectsMode"};

/// CUPS' own words: both sides of a sheet, color, several pages on a side (which a booklet can't
/// be combined with), and the names of the order in which sides are printed.
inline constexpr const char *sidesOption = "sides";
inline constexpr const char *colorModeOption = "print-color-mode";
inline constexpr const char *numberUpOption = "number-up";
inline constexpr std::array orderOptions{"OutputOrder", "output-order", "page-delivery"};

enum class Duplexing { None, LongEdge, ShortEdge };

/// Which edge sheets are turned over at. A PPD's option comes before CUPS' word; a choice that is
/// not known prints on one side.
Duplexing readDuplexing(const ValueOf &valueOf);

/// Whether the job is printed without color. A PPD's option comes before CUPS' word.
bool readsAsGray(const ValueOf &valueOf);

/// Whether the last side is printed first; nothing where no option says.
std::optional<bool> readReversed(const ValueOf &valueOf);

/// The text with its ASCII letters small.
std::string lowerCase(std::string text);

}  // namespace orvek::imposition
