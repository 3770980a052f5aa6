// SPDX-License-Identifier: Apache-2.0
// Plain names of job attributes and their values, for where neither printer nor libcups has better
// ones.
#pragma once

#include <QString>

namespace orvek {

/// "Two-sided" for "sides"; an attribute that is not known gives its own words.
QString plainSettingTitle(const QString &keyword);

/// A value's name: "Long edge" for "two-sided-long-edge", "A4" for "iso_a4_210x297mm", "Staple" for
/// the finishing 4; a value that is not known gives its own words.
QString plainChoiceTitle(const QString &setting, const QString &keyword);

}  // namespace orvek
