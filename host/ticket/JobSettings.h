// SPDX-License-Identifier: Apache-2.0
// What a job is told beside the printer's own options: copies, pages, orientation. Plain data, with
// pure functions between it and CUPS' names.
#pragma once

#include <QMap>
#include <QString>

#include "platform/system/Result.h"

namespace orvek {

/// How pages are turned onto the sheet. Automatic leaves it to the document.
enum class Orientation { Automatic, Portrait, Landscape, ReversePortrait, ReverseLandscape };

struct JobSettings {
  int copies = 1;      ///< 1 to maximumCopies
  bool collate = true; /**< whole sets, not page by page. Where the PPD has an option of that name,
                            its mark is what counts, and a session keeps both the same */
  QString
      pageRanges;  ///< "1-3,7", as normalizedPageRanges (PageRanges.h) gives them; null: all pages
  Orientation orientation = Orientation::Automatic;
  bool reverse = false;  ///< last page first
  QString
      pageRangesProblem;  ///< what is wrong with ranges that were typed, in words; null: nothing

  bool operator==(const JobSettings &) const = default;
};

inline constexpr int maximumCopies = 9999;

/// The PPD's own option for collation, and CUPS' (which compares without regard to case).
inline constexpr const char *collateOption = "Collate";

/// What differs from the defaults of a JobSettings, by CUPS' names: "copies", "Collate",
/// "page-ranges" and "orientation-requested" (RFC 8011), "outputorder".
QMap<QString, QString> toOptions(const JobSettings &settings);

/// Options of a command line that are about job settings, kept as they were written: a job that
/// nobody changed since carries the very same words.
struct AskedOptions {
  QMap<QString, QString> words;  ///< name to value, as written
  JobSettings settings;          ///< what they come to

  /// Reads one of the options that toOptions writes, or one that lp's users know for the same
  /// ("landscape", "multiple-document-handling"). False where it is none of them, and nothing
  /// changes; a Usage failure where its value makes no sense.
  Result<bool> take(const QString &name, const QString &value);
};

/// As above; a setting that still is what was asked for is said in the words it was asked in.
QMap<QString, QString> toOptions(const JobSettings &settings, const AskedOptions &asked);

}  // namespace orvek
