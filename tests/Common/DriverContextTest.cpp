// SPDX-License-Identifier: Apache-2.0
// What the shared library reads out of a PPD. Each PPD is written to a file and opened by libcups.

#include <gtest/gtest.h>

#include <QTemporaryFile>
#include <memory>

#include "Common/Utilities.h"
#include "platform/printing/StatusCodes.h"

namespace {

struct PPDCloser {
  void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using PPD = std::unique_ptr<ppd_file_t, PPDCloser>;

constexpr const char *plainOption =
    "*OpenUI *%1/Smoothing: PickOne\n*Default%1: Off\n*%1 Off/Off: \"\"\n*%1 On/On: \"\"\n"
    "*CloseUI: *%1\n";

PPD openPPD(const QByteArray &body) {
  QTemporaryFile file;
  if (!file.open()) return nullptr;
  file.write(
      "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageVersion: English\n"
      "*LanguageEncoding: UTF-8\n*PCFileName: \"OVK.PPD\"\n*NickName: \"Test\"\n");
  file.write(body);
  file.close();
  return PPD(ppdOpenFile(file.fileName().toLocal8Bit().constData()));
}

QByteArray option(const char *keyword) {
  return QString::fromLatin1(plainOption).arg(QLatin1String(keyword)).toLatin1();
}

QString modelOf(const QByteArray &modelName) {
  const PPD ppd = openPPD("*ModelName: \"" + modelName + "\"\n");
  return getDeviceModelNumber(ppd.get());
}

TEST(DeviceModelNumber, IsTheFirstRunOfDigitsInTheModelName) {
  EXPECT_EQ(modelOf("Orvek 6180dn rev 2"), QStringLiteral("6180"));
}

TEST(DeviceModelNumber, HasNoLeadingZeros) {
  EXPECT_EQ(modelOf("Orvek 0061"), QStringLiteral("61"));
}

TEST(DeviceModelNumber, IsZeroForANameWithoutDigits) {
  EXPECT_EQ(modelOf("Orvek Quince"), QStringLiteral("0"));
}

TEST(DeviceModelNumber, IsFourZerosForANameThatIsNotUTF8) {
  EXPECT_EQ(modelOf("Orvek \xE9 6180"), QStringLiteral("0000"));
}

TEST(DeviceModelNumber, IsFourZerosForANameThatEndsInsideACharacter) {
  EXPECT_EQ(modelOf("Orvek 6180 \xC3"), QStringLiteral("0000"));
}

TEST(DeviceModelNumber, ReadsPastCharactersOfOtherScripts) {
  EXPECT_EQ(modelOf("\xE3\x83\x97\xE3\x83\xAA 6180"), QStringLiteral("6180"));
}

TEST(DeviceModelNumber, IsFourZerosWithoutTheAttribute) {
  const PPD ppd = openPPD("");
  ASSERT_NE(ppd, nullptr);
  EXPECT_EQ(getDeviceModelNumber(ppd.get()), QStringLiteral("0000"));
}

TEST(DeviceModelNumber, IsFourZerosWithoutAPPD) {
  EXPECT_EQ(getDeviceModelNumber(nullptr), QStringLiteral("0000"));
}

TEST(DeviceModelNumber, TakesNoSignIntoTheNumber) {
  EXPECT_EQ(modelOf("Orvek -6180"), QStringLiteral("6180"));
}

TEST(DeviceModelNumber, GivesTheLargestNumberForDigitsBeyond32Bits) {
  EXPECT_EQ(modelOf("Orvek 2147483648"), QStringLiteral("2147483647"));
  EXPECT_EQ(modelOf("Orvek 99999999999999999999999"), QStringLiteral("2147483647"));
}

TEST(DriverCheck, AcceptsOwnManufacturerWithEitherDriverOption) {
  for (const char *keyword : {"OVKImageSmoothing", "OVKHasOVRaster"}) {
    const PPD ppd = openPPD("*Manufacturer: \"Orvek\"\n" + option(keyword));
    EXPECT_EQ(MyCheckPDEContextCUPS(ppd.get()), 0) << keyword;
  }
}

TEST(DriverCheck, RefusesAManufacturerInAnotherCase) {
  const PPD ppd = openPPD("*Manufacturer: \"orvek\"\n" + option("OVKHasOVRaster"));
  EXPECT_EQ(MyCheckPDEContextCUPS(ppd.get()), kPMInvalidPDEContext);
}

TEST(DriverCheck, RefusesAPPDWithoutDriverOptions) {
  const PPD ppd = openPPD("*Manufacturer: \"Orvek\"\n" + option("OVKStapling"));
  EXPECT_EQ(MyCheckPDEContextCUPS(ppd.get()), kPMInvalidPDEContext);
}

TEST(DriverCheck, RefusesAPPDWithoutManufacturer) {
  const PPD ppd = openPPD(option("OVKImageSmoothing"));
  ASSERT_NE(ppd, nullptr);
  EXPECT_EQ(MyCheckPDEContextCUPS(ppd.get()), kPMInvalidPDEContext);
}

TEST(DriverCheck, RefusesAbsence) {
  EXPECT_EQ(MyCheckPDEContextCUPS(nullptr), kPMInvalidPDEContext);
}

}  // namespace
