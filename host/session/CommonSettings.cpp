// SPDX-License-Identifier: Apache-2.0
// Finds the option that stands for a setting among the names that PPD files use.

#include "host/session/CommonSettings.h"

#include <algorithm>
#include <array>
#include <vector>

#include "host/ppd/Wording.h"
#include "host/session/PrintSession.h"

namespace orvek {
namespace {

struct Names {
  CommonSetting setting;
  const char *attribute;
  std::vector<const char *> options;  // the first that the PPD has counts
};

const std::array<Names, 6> &allNames() {
  static const std::array<Names, 6> names{{
      {CommonSetting::PaperSize, "media", {"PageSize"}},
      {CommonSetting::PaperSource, "media-source", {"InputSlot"}},
      {CommonSetting::PaperType, "media-type", {"MediaType"}},
      {CommonSetting::Sides, "sides", {"Duplex", "JCLDuplex", "EFDuplex", "KD03Duplex"}},
      {CommonSetting::Color, "print-color-mode", {"ColorModel", "ColorMode", "ColorEffectsMode"}},
      {CommonSetting::Quality,
       "print-quality",
       {"cupsPrintQuality", "PrintQuality", "OutputMode", "Resolution"}},
  }};
  return names;
}

constexpr const char *manualFeedSize = "PageRegion";
constexpr const char *customChoice = "Custom";
constexpr const char *pagesPerSheetAttribute = "number-up";  // the ticket's layout says it

const ppd_option_t *optionFor(ppd_file_t *ppd, const Names &names) {
  for (const char *keyword : names.options) {
    const ppd_option_t *option = ppdFindOption(ppd, keyword);
    if (option != nullptr && option->ui != PPD_UI_PICKMANY) return option;
  }
  return nullptr;
}

// A custom value can be shown where there are fields for it: for the paper's size.
bool canBeShown(const ppd_choice_t &choice, CommonSetting setting) {
  return setting == CommonSetting::PaperSize || qstricmp(choice.choice, customChoice) != 0;
}

Setting settingOf(const PrintSession &session, const ppd_option_t &option, CommonSetting which) {
  Setting setting;
  setting.key = QString::fromUtf8(option.keyword);
  setting.title = optionText(session.marks().ppd(), setting.key);
  setting.current = session.marks().marked(setting.key);
  for (int i = 0; i < option.num_choices; ++i) {
    const ppd_choice_t &choice = option.choices[i];
    if (!canBeShown(choice, which)) continue;
    const QString keyword = QString::fromUtf8(choice.choice);
    const QString text = QString::fromUtf8(choice.text);
    setting.choices.append({keyword, text.isEmpty() ? keyword : text});
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

Setting settingOf(const PrintSession &session, const SettingOffer &offer) {
  return {offer.attribute, offer.title, offer.choices, choiceInForce(session, offer), false};
}

std::optional<Setting> offered(const PrintSession &session, const Names &names) {
  for (const SettingOffer &offer : session.origin().offers) {
    if (offer.attribute == QLatin1String(names.attribute)) return settingOf(session, offer);
  }
  return std::nullopt;
}

bool isFurther(const SettingOffer &offer) {
  if (offer.attribute == QLatin1String(pagesPerSheetAttribute) || offer.choices.size() < 2) {
    return false;
  }
  return std::none_of(allNames().begin(), allNames().end(), [&](const Names &names) {
    return offer.attribute == QLatin1String(names.attribute);
  });
}

}  // namespace

std::optional<Setting> commonSetting(const PrintSession &session, CommonSetting which) {
  const Names &names = allNames()[static_cast<std::size_t>(which)];
  std::optional<Setting> setting;
  if (session.printer()) {
    const ppd_option_t *option = optionFor(session.marks().ppd(), names);
    if (option != nullptr) setting = settingOf(session, *option, which);
  } else {
    setting = offered(session, names);
  }
  if (setting && setting->choices.size() < 2) return std::nullopt;
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
  session.ticket().setValue(setting.key, choice);
  return true;
}

QStringList commonOptions(const PrintSession &session) {
  QStringList keywords;
  if (!session.printer()) return keywords;
  for (const Names &names : allNames()) {
    const ppd_option_t *option = optionFor(session.marks().ppd(), names);
    if (option != nullptr) keywords << QString::fromUtf8(option->keyword);
  }
  keywords << QString::fromLatin1(collateOption) << QString::fromLatin1(manualFeedSize);
  return keywords;
}

}  // namespace orvek
