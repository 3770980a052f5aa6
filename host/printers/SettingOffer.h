// SPDX-License-Identifier: Apache-2.0
// What a printer without PPD offers. Plain data.
#pragma once

#include <QList>
#include <QString>

namespace orvek {

/// One value of a setting that a queue offers. Plain data.
struct SettingChoice {
  QString keyword;
  /// For people.
  QString text;

  bool operator==(const SettingChoice &) const = default;
};

/// One job attribute of RFC 8011 or PWG 5100 ("media", "sides", "print-color-mode",
/// "print-quality", "media-source", "media-type") with what the queue supports. Plain data.
struct SettingOffer {
  QString attribute;
  /// For people; null: a usual one.
  QString title;
  QList<SettingChoice> choices;
  /// The queue's default; null: it names none.
  QString standard;
};

}  // namespace orvek
