// SPDX-License-Identifier: Apache-2.0
// Values out of XML as printers send it.

#include <gtest/gtest.h>

#include "Common/Utilities.h"

namespace {

struct XMLQueries : testing::Test {
  pugi::xml_node parse(const char *text) {
    EXPECT_TRUE(document.load_string(text, pugi::parse_default | pugi::parse_pi));
    return document.document_element();
  }

  pugi::xml_document document;
};

using XMLTree = XMLQueries;

QString text(const char *value) {
  return QString::fromUtf8(value);
}

TEST_F(XMLTree, FindsTheNextElementInDocumentOrder) {
  const pugi::xml_node root = parse("<a><b><x n='1'/></b><x n='2'/></a>");
  EXPECT_STREQ(XMLTreeFind(root, text("x")).attribute("n").value(), "1");
}

TEST_F(XMLTree, GoesOnBehindTheGivenNodesSubtree) {
  const pugi::xml_node root = parse("<a><b><c/></b><d><x n='2'/></d></a>");
  EXPECT_STREQ(XMLTreeFind(root.child("b"), text("x")).attribute("n").value(), "2");
}

TEST_F(XMLTree, NeverTestsTheGivenNode) {
  const pugi::xml_node root = parse("<x n='1'><x n='2'/></x>");
  EXPECT_STREQ(XMLTreeFind(root, text("x")).attribute("n").value(), "2");
  EXPECT_TRUE(XMLTreeFind(root.child("x"), text("x")).empty());
}

TEST_F(XMLTree, ComparesNamesExactly) {
  EXPECT_TRUE(XMLTreeFind(parse("<a><X/><xx/></a>"), text("x")).empty());
}

TEST_F(XMLTree, FindsNothingWithoutANodeOrAName) {
  EXPECT_TRUE(XMLTreeFind({}, text("x")).empty());
  EXPECT_TRUE(XMLTreeFind(parse("<a>text<b/></a>"), QString()).empty());
  EXPECT_TRUE(XMLTreeFind(parse("<a>text<b/></a>"), text("")).empty());
}

TEST_F(XMLTree, GivesAllTextBelowTheFoundElement) {
  const pugi::xml_node root = parse("<a><Name>Orvek <i>61</i><!-- no --><![CDATA[80]]></Name></a>");
  EXPECT_EQ(GetOVGValue(root, text("Name")), text("Orvek 6180"));
}

TEST_F(XMLTree, GivesNullForAMissingAndAnEmptyTextForAnEmptyElement) {
  const pugi::xml_node root = parse("<a><Name/></a>");
  EXPECT_TRUE(GetOVGValue(root, text("Model")).isNull());
  EXPECT_FALSE(GetOVGValue(root, text("Name")).isNull());
  EXPECT_TRUE(GetOVGValue(root, text("Name")).isEmpty());
}

TEST_F(XMLTree, FindsAnElementByOneOfItsOwnAttributes) {
  const pugi::xml_node root = parse("<a k='1' l='wanted'/>");
  EXPECT_EQ(XMLTreeFindWithName(root, text("wanted")), root);
}

TEST_F(XMLTree, GivesNullWhereOnlyAGrandchildCarriesTheValue) {
  const pugi::xml_node root = parse("<a><b><c k='wanted'/></b></a>");
  EXPECT_TRUE(XMLTreeFindWithName(root, text("wanted")).empty());
}

TEST_F(XMLTree, GivesNullWhereOnlyAChildCarriesTheValue) {
  EXPECT_TRUE(XMLTreeFindWithName(parse("<a><c k='wanted'/></a>"), text("wanted")).empty());
  EXPECT_TRUE(XMLTreeFindWithName({}, text("wanted")).empty());
}

TEST_F(XMLTree, ReadsAPropertysValueFromItsSecondChild) {
  EXPECT_EQ(XMLGetPropertyValue(parse("<p><k>name</k><v>value</v><v>no</v></p>")), text("value"));
}

TEST_F(XMLTree, ReadsAPropertysValueFromItsOnlyChild) {
  EXPECT_EQ(XMLGetPropertyValue(parse("<p><v>value</v></p>")), text("value"));
}

TEST_F(XMLTree, ReadsTheNameWhereThePropertysValueIsAnElement) {
  EXPECT_EQ(XMLGetPropertyValue(parse("<p><v><inner>x</inner></v></p>")), text("inner"));
}

TEST_F(XMLTree, GivesAnEmptyTextForAMissingStep) {
  for (const char *xml : {"<p/>", "<p><v/></p>", "<p><k>name</k><v/></p>"}) {
    const QString value = XMLGetPropertyValue(parse(xml));
    EXPECT_TRUE(value.isEmpty() && !value.isNull()) << xml;
  }
  EXPECT_TRUE(XMLGetPropertyValue({}).isEmpty());
}

TEST(RemoveColon, DropsTheLastCharacterWhateverItIs) {
  EXPECT_EQ(removeColonFromString(text("Stapling:")), text("Stapling"));
  EXPECT_EQ(removeColonFromString(text("Stapling")), text("Staplin"));
}

TEST(RemoveColon, GivesAnEmptyTextForAnEmptyOne) {
  EXPECT_TRUE(removeColonFromString(text("")).isEmpty());
  EXPECT_TRUE(removeColonFromString(QString()).isEmpty());
}

}  // namespace
