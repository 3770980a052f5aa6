// SPDX-License-Identifier: Apache-2.0
// The settings that nearly every printer has, whatever its PPD calls them, and for a printer
// without PPD by what the queue says of itself. Picks go through the session.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

#include "host/ppd/Marks.h"
#include "host/printers/SettingOffer.h"

namespace orvek {

class PrintSession;

enum class CommonSetting { PaperSize, PaperSource, PaperType, Sides, Color, Quality };

/// One such setting of a session's printer. Plain data.
struct Setting {
  /// The PPD's main keyword, or the IPP attribute.
  QString key;

  /// As the PPD names it; null where only IPP knows it.
  QString title;

  QList<SettingChoice> choices;

  /// Keyword of the choice in force; null: none.
  QString current;

  bool isInPpd = true;
};

/// What the choice in force is called; null: none is.
QString currentText(const Setting &setting);

/// How a booklet's sheets are printed whatever is marked, as one of the choices of the setting
/// Sides: turned over at the short edge. Nothing where no booklet is asked for, and for a printer
/// that calls it otherwise.
std::optional<OptionChoice> sidesOfBooklet(const PrintSession &session);

/// Nothing where the printer lacks the setting, or has just one choice for it. In force is what is
/// marked, but for a booklet's sides.
std::optional<Setting> commonSetting(const PrintSession &session, CommonSetting setting);

/// What a printer without PPD offers beyond those (output tray, finishings).
QList<Setting> furtherSettings(const PrintSession &session);

/// Picks a choice. False where it was refused.
bool pickSetting(PrintSession &session, const Setting &setting, const QString &choice);

/// Main keywords of the PPD's options that commonSetting gives, and of those that go with them
/// (collation; the paper size once more, for manual feed).
QStringList commonOptions(const PrintSession &session);

}  // namespace orvek
