// SPDX-License-Identifier: Apache-2.0
// Finds the option that stands for a setting among the names that PPD files use.

#include "host/session/CommonSettings.h"

#include <algorithm>
#include <array>
#include <vector>

#include "host/ppd/CustomChoice.h"
#include "host/ppd/StandardNames.h"
#include "host/session/PrintSession.h"
#include "host/ticket/BookletSettings.h"
#include "host/ticket/JobOptionNames.h"
#include "imposition/StandardOptions.h"

namespace orvek {
namespace {

struct Names {
  CommonSetting setting;
  const char *attribute;
  /// The first that the PPD has counts.
  std::vector<const char *> options;
};

template <std::size_t Size>
std::vector<const char *> all(const std::array<const char *, Size> &options) {
  return {options.begin(), options.end()};
}

const std::array<Names, 6> &allNames() {
  static const std::array<Names, 6> names{{
      {CommonSetting::PaperSize, "media", {"PageSize"}},
      {CommonSetting::PaperSource, "media-source", {"InputSlot"}},
      {CommonSetting::PaperType, "media-type", {"MediaType"}},
      {CommonSetting::Sides, imposition::sidesOption, all(imposition::duplexOptions)},
      {CommonSetting::Color, imposition::colorModeOption, all(imposition::colorOptions)},
      {CommonSetting::Quality,
       "print-quality",
       {"cupsPrintQuality", "PrintQuality", "OutputMode", "Resolution"}},
  }};
  return names;
}

constexpr const char *bookletSides = "DuplexTumble";
constexpr const char *manualFeedSize = "PageRegion";

PrinterOption optionFor(const PrinterDescription &printer, const Names &names) {
  for (const char *keyword : names.options) {
    const PrinterOption option = printer.option(QLatin1String(keyword));
    if (option && option.kind() != OptionKind::PickMany) return option;
  }
  return {};
}

// A custom value can be shown where there are fields for it: for the paper's size.
bool canBeShown(const PrinterChoice &choice, CommonSetting setting) {
  return setting == CommonSetting::PaperSize || !isCustomChoice(choice.keyword);
}

Setting settingOf(const PrintSession &session, const PrinterOption &option, CommonSetting which) {
  Setting setting;
  setting.key = option.keyword();
  setting.title = option.text();
  setting.current = session.marks().marked(setting.key);
  for (const PrinterChoice &choice : option.choices()) {
    if (canBeShown(choice, which)) setting.choices.append({choice.keyword, choice.text});
  }
  return setting;
}

// What was asked for, what the queue was set up for, what it does by itself.
QString choiceInForce(const PrintSession &session, const SettingOffer &offer) {
  const QVariant asked = session.ticket().value(offer.attribute);
  if (asked.isValid()) return textReading(asked);
  for (const OptionChoice &option : session.origin().queueOptions) {
    if (option.option == offer.attribute) return option.choice;
  }
  return offer.standard;
}

// A print server names what a printer offers in English, where libcups lacks the user's language;
// papers it names by keywords everywhere.
Setting settingOf(const PrintSession &session, const SettingOffer &offer) {
  Setting setting{offer.attribute, offer.title, offer.choices, choiceInForce(session, offer),
                  false};
  const QString title =
      standardNamesAreTranslated() ? standardOptionName(offer.attribute) : QString();
  if (!title.isNull()) setting.title = title;
  if (!standardNamesAreTranslated() && offer.attribute != u"media") return setting;
  for (SettingChoice &choice : setting.choices) {
    const QString name = standardChoiceName(offer.attribute, choice.keyword);
    if (!name.isNull()) choice.text = name;
  }
  return setting;
}

std::optional<Setting> offered(const PrintSession &session, const Names &names) {
  for (const SettingOffer &offer : session.origin().offers) {
    if (offer.attribute == QLatin1String(names.attribute)) return settingOf(session, offer);
  }
  return std::nullopt;
}

bool isFurther(const SettingOffer &offer) {
  // The ticket's layout says the pages per sheet.
  if (offer.attribute == pagesPerSheetOption || offer.choices.size() < 2) return false;
  return std::none_of(allNames().begin(), allNames().end(), [&](const Names &names) {
    return offer.attribute == QLatin1String(names.attribute);
  });
}

}  // namespace

QString currentText(const Setting &setting) {
  for (const SettingChoice &choice : setting.choices) {
    if (choice.keyword == setting.current) return choice.text;
  }
  return {};
}

std::optional<OptionChoice> sidesOfBooklet(const PrintSession &session) {
  if (!session.origin().printer || !bookletSettings(session.ticket().values()).enabled) return {};
  const auto &names = allNames()[static_cast<std::size_t>(CommonSetting::Sides)];
  const PrinterOption option = optionFor(*session.origin().printer, names);
  return option ? session.origin().printer->spelled(option.keyword(), QLatin1String(bookletSides))
                : std::nullopt;
}

std::optional<Setting> commonSetting(const PrintSession &session, CommonSetting which) {
  const Names &names = allNames()[static_cast<std::size_t>(which)];
  std::optional<Setting> setting;
  if (session.origin().printer) {
    const PrinterOption option = optionFor(*session.origin().printer, names);
    if (option) setting = settingOf(session, option, which);
  } else {
    setting = offered(session, names);
  }
  if (setting && setting->choices.size() < 2) return std::nullopt;
  const auto forced = which == CommonSetting::Sides ? sidesOfBooklet(session) : std::nullopt;
  if (setting && forced) setting->current = forced->choice;
  return setting;
}

QList<Setting> furtherSettings(const PrintSession &session) {
  QList<Setting> settings;
  for (const SettingOffer &offer : session.origin().offers) {
    if (isFurther(offer)) settings << settingOf(session, offer);
  }
  return settings;
}

bool pickSetting(PrintSession &session, const Setting &setting, const QString &choice) {
  if (setting.isInPpd) return session.pick(setting.key, choice);
  const ActionScope action(session);
  session.setTicketValue(setting.key, choice);
  return true;
}

QStringList commonOptions(const PrintSession &session) {
  QStringList keywords;
  if (!session.origin().printer) return keywords;
  for (const Names &names : allNames()) {
    if (const PrinterOption option = optionFor(*session.origin().printer, names)) {
      keywords << option.keyword();
    }
  }
  keywords << QString(collateOption) << QString::fromLatin1(manualFeedSize);
  return keywords;
}

}  // namespace orvek
