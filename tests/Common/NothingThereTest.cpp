// SPDX-License-Identifier: Apache-2.0
// Choices, PPDs and elements with a part missing.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QTemporaryFile>
#include <array>
#include <utility>

#include "Common/DefaultSelection.h"
#include "Common/Utilities.h"

namespace {

struct Choice {
  QString keyword;
  QString ppdTitle() const { return keyword; }
  QString userTitle() const { return QStringLiteral("second"); }
};

// What the menu of two items shows once the default was to be selected.
QString shownAfter(const QString &defaultKeyword, Choice choice) {
  QComboBox popUp;
  orvek::addItem(&popUp, {QStringLiteral("first")});
  orvek::addItem(&popUp, {QStringLiteral("second")});
  const std::array choices{&choice};
  setDefault(defaultKeyword, choices, &popUp);
  return popUp.currentText();
}

TEST(DefaultSelection, OfAnEmptyKeywordIsNotAChoiceWithoutOne) {
  EXPECT_EQ(shownAfter(QStringLiteral(""), Choice{QString()}), QStringLiteral("first"));
  EXPECT_EQ(shownAfter(QStringLiteral(""), Choice{QStringLiteral("")}), QStringLiteral("second"));
}

TEST(DefaultSelection, OfNoKeywordIsNotAChoiceWithAnEmptyOne) {
  EXPECT_EQ(shownAfter(QString(), Choice{QStringLiteral("")}), QStringLiteral("first"));
}

TEST(DeviceModelNumber, IsFourZerosForAnAttributeWithoutValue) {
  QTemporaryFile file;
  ASSERT_TRUE(file.open());
  file.write(
      "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageVersion: English\n"
      "*LanguageEncoding: UTF-8\n*PCFileName: \"OVK.PPD\"\n*NickName: \"Test\"\n"
      "*ModelName: \"Orvek 6180\"\n");
  file.close();
  ppd_file_t *ppd = ppdOpenFile(file.fileName().toLocal8Bit().constData());
  ASSERT_NE(ppd, nullptr);
  ppd_attr_t *attribute = ppdFindAttr(ppd, "ModelName", nullptr);
  char *value = std::exchange(attribute->value, nullptr);
  EXPECT_EQ(getDeviceModelNumber(ppd), QStringLiteral("0000"));
  attribute->value = value;
  EXPECT_EQ(getDeviceModelNumber(ppd), QStringLiteral("6180"));
  ppdClose(ppd);
}

TEST(ElementByValue, IsNoneThatLacksTheValue) {
  pugi::xml_document document;
  ASSERT_TRUE(document.load_string("<a k='1' l=''/>"));
  const pugi::xml_node element = document.document_element();
  EXPECT_TRUE(XMLTreeFindWithName(element, QStringLiteral("2")).empty());
  EXPECT_TRUE(XMLTreeFindWithName(element, QString()).empty());
  EXPECT_EQ(XMLTreeFindWithName(element, QStringLiteral("")), element);
}

}  // namespace
