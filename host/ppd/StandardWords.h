// SPDX-License-Identifier: Apache-2.0
// The tables behind host/ppd/StandardNames: keywords and their names, in English.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <span>

namespace orvek {

/// Keywords, or parts of them, that mean the same, and what that is called. Plain data.
struct StandardWord {
  /// In small letters without hyphens, with spaces between; one only in tables whose order matters.
  const char *keywords;
  const char *name;
};

using StandardWords = std::span<const StandardWord>;

/// Options that mean the same and share the names of their choices. Plain data.
struct StandardOption {
  /// In small letters without hyphens, with spaces between.
  const char *keywords;
  const char *name;
  StandardWords choices = {};
  /// More of them, which other options have, too.
  StandardWords shared = {};
  /// Beginnings of choices that end with a number: "tray" of "Tray2" is "Tray %1".
  StandardWords numbered = {};
  /// Beginnings of choices that end with a place of the sheet, as "stapletopleft" does.
  StandardWords placed = {};
};

/// Every standard option but those that choose a size of paper.
std::span<const StandardOption> standardOptions();

/// What a choice is called, whatever the standard option.
StandardWords commonChoices();

/// Places of the sheet, longer words first: "topleft" must not be found as "left".
StandardWords placesOfTheSheet();

/// Sizes of paper that have more than letters and numbers for a name, and what is added to a size.
StandardWords standardPapers();
StandardWords paperSuffixes();

/// The context that these names stand under in the catalogues.
inline constexpr const char *standardNamesContext = "orvek::StandardNames";

/// The keyword in small letters, without what stands between its words: PPD files and IPP spell one
/// thing "ByPassTray" and "by-pass-tray".
QString plainKeyword(const QString &keyword);

}  // namespace orvek
