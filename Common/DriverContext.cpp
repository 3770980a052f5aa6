// SPDX-License-Identifier: Apache-2.0
// What a PPD says about the printer's model and about the driver it was written for.

#include <QStringDecoder>
#include <algorithm>
#include <cstring>
#include <limits>

#include "Common/Utilities.h"
#include "platform/printing/StatusCodes.h"

namespace {

constexpr const char *modelNameKeyword = "ModelName";
constexpr const char *ownManufacturer = "Orvek";

QString unknownModel() {
  return QStringLiteral("0000");
}

bool isDigit(QChar c) {
  return c >= u'0' && c <= u'9';
}

std::int32_t firstNumber(const QString &text) {
  constexpr std::int64_t largest = std::numeric_limits<std::int32_t>::max();
  std::int64_t number = 0;
  for (auto at = std::find_if(text.begin(), text.end(), isDigit); at != text.end() && isDigit(*at);
       ++at) {
    number = std::min(number * 10 + (at->unicode() - u'0'), largest);
  }
  return static_cast<std::int32_t>(number);
}

}  // namespace

QString getDeviceModelNumber(ppd_file_t *ppd) {
  if (ppd == nullptr) return unknownModel();
  const ppd_attr_t *attribute = ppdFindAttr(ppd, modelNameKeyword, nullptr);
  if (attribute == nullptr || attribute->value == nullptr) return unknownModel();
  QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
  const QString name = decoder.decode(QByteArrayView(attribute->value));
  return decoder.hasError() ? unknownModel() : QString::number(firstNumber(name));
}

int MyCheckPDEContextCUPS(ppd_file_t *ppd) {
  if (ppd == nullptr) return kPMInvalidPDEContext;
  const bool ownDriver = ppdFindOption(ppd, "OVKImageSmoothing") != nullptr ||
                         ppdFindOption(ppd, "OVKHasOVRaster") != nullptr;
  if (!ownDriver) return kPMInvalidPDEContext;
  const bool ownPrinter =
      ppd->manufacturer != nullptr && std::strcmp(ppd->manufacturer, ownManufacturer) == 0;
  return ownPrinter ? noErr : kPMInvalidPDEContext;
}
