// SPDX-License-Identifier: Apache-2.0
// Hands values to the one reading of the booklet's keys, and spells them as panels do.

#include "host/ticket/BookletSettings.h"

#include <algorithm>

#include "platform/printing/PrintSettings.h"
#include "platform/system/OptionMap.h"

namespace orvek {
namespace {

template <typename Keys>
std::optional<QString> spelledAmong(const Keys &keys, const QString &name) {
  const auto key = std::find_if(keys.begin(), keys.end(),
                                [&](QLatin1String known) { return sameKeyword(known, name); });
  return key == keys.end() ? std::nullopt : std::optional<QString>(*key);
}

}  // namespace

imposition::BookletKeys bookletSettings(const TicketValues &ticket) {
  return imposition::readBookletKeys([&](const char *key) -> std::optional<std::string> {
    const auto value = valueNamed(ticket, QLatin1String(key));
    return value ? std::optional(textReading(*value).toStdString()) : std::nullopt;
  });
}

// A panel reads a flag by one word alone, and a key under one spelling; CUPS knows several.
std::optional<OptionChoice> bookletEntry(const OptionChoice &option) {
  if (const auto flag = spelledAmong(bookletFlags, option.option)) {
    const bool isOn = imposition::readsAsOn(option.choice.toStdString());
    return OptionChoice{*flag, isOn ? trueValue : falseValue};
  }
  const auto number = spelledAmong(bookletNumbers, option.option);
  return number ? std::optional(OptionChoice{*number, option.choice}) : std::nullopt;
}

}  // namespace orvek
