// SPDX-License-Identifier: Apache-2.0
// What is taken for XML, and what is refused and with which words.

#include "platform/xml/XMLDocument.h"

#include <gtest/gtest.h>

#include "platform/xml/Nodes.h"

namespace {

/// The failure's line, or "well-formed".
std::string verdict(const QByteArray &text) {
  const auto document = orvek::parseXML(text, QStringLiteral("file"));
  if (document) return "well-formed";
  EXPECT_EQ(document.failure().kind, orvek::FailureKind::Invalid);
  return document.failure().line().toStdString();
}

std::string textOf(const QByteArray &text) {
  const auto document = orvek::parseXML(text, QStringLiteral("file"));
  return document ? orvek::stringValue(*document.value()).toStdString() : "refused";
}

TEST(XMLDocument, TakesWhatIsWellFormed) {
  EXPECT_EQ(verdict("<?xml version='1.0'?>\n<!DOCTYPE a>\n<!-- c --><a k='1' l=\"2\"><b/></a>\n"),
            "well-formed");
  EXPECT_EQ(verdict("\xEF\xBB\xBF<a>\xC3\xA9</a>"), "well-formed");
}

TEST(XMLDocument, KeepsWhiteSpaceAndExpandsReferences) {
  EXPECT_EQ(textOf("<a><b>1</b> <b>&lt;2&#x26;&#33;</b></a>"), "1 <2&!");
}

TEST(XMLDocument, ReadsTheEncodingThatADeclarationNames) {
  EXPECT_EQ(textOf("<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE9</a>"), "\xC3\xA9");
}

TEST(XMLDocument, NamesTheLineOfATagThatDoesNotMatch) {
  EXPECT_TRUE(verdict("<a>\n<b>\n</a>").starts_with("file:3: ")) << verdict("<a>\n<b>\n</a>");
}

TEST(XMLDocument, RefusesWhatIsCutOff) {
  for (const char *text : {"<a>", "<a", "<a k='1", "<a><!-- ", "<a><![CDATA[x"}) {
    EXPECT_NE(verdict(text), "well-formed") << text;
  }
}

TEST(XMLDocument, RefusesADocumentWithoutExactlyOneRoot) {
  EXPECT_EQ(verdict(""), "file:1: there is no element");
  EXPECT_EQ(verdict("<!-- c -->"), "file:1: there is no element");
  EXPECT_EQ(verdict("<a/>\n<b/>"), "file:2: there is more than one root element");
  EXPECT_EQ(verdict("<a/>\ntext"), "file:1: text stands outside the root element");
}

TEST(XMLDocument, RefusesAnAttributeGivenTwice) {
  EXPECT_EQ(verdict("<a k='1' k='2'/>"), "file:1: the attribute \"k\" is given twice");
}

TEST(XMLDocument, RefusesABareAmpersandOrBracket) {
  EXPECT_NE(verdict("<a>x & y</a>"), "well-formed");
  EXPECT_NE(verdict("<a>&nosuch;</a>"), "well-formed");
  EXPECT_NE(verdict("<a k='&'/>"), "well-formed");
  EXPECT_NE(verdict("<a k='&lt; <'/>"), "well-formed");
  EXPECT_EQ(verdict("<a k='&amp;'>&amp;&#10;<![CDATA[&]]></a>"), "well-formed");
}

TEST(XMLDocument, RefusesBytesThatAreNoUTF8) {
  EXPECT_EQ(verdict("<a>\xE9</a>"), "file:1: the text is not valid UTF-8");
}

TEST(XMLDocument, NeverReadsAFileForAnEntity) {
  const std::string text =
      textOf("<!DOCTYPE a [<!ENTITY e SYSTEM 'file:///etc/passwd'>]><a>[&e;]</a>");
  EXPECT_EQ(text, "[&e;]");
}

TEST(XMLDocument, NeverExpandsEntitiesOfEntities) {
  EXPECT_EQ(textOf("<!DOCTYPE a [<!ENTITY x 'y'><!ENTITY z '&x;&x;'>]><a>&z;</a>"), "&z;");
}

TEST(XMLDocument, TakesLargeOnes) {
  QByteArray large("<a>");
  while (large.size() < 50'000'000) large += "<item number='17'>a value of some length</item>\n";
  EXPECT_EQ(verdict(large + "</a>"), "well-formed");
}

TEST(XMLDocument, TakesDeepOnes) {
  constexpr int levels = 100000;
  EXPECT_EQ(verdict(QByteArray("<e>").repeated(levels) + QByteArray("</e>").repeated(levels)),
            "well-formed");
}

TEST(XMLDocument, TakesAnElementWithManyAttributesInGoodTime) {
  QByteArray text("<a");
  for (int i = 0; i < 20000; ++i) text += " k" + QByteArray::number(i) + "='1'";
  EXPECT_EQ(verdict(text + "/>"), "well-formed");
}

}  // namespace
