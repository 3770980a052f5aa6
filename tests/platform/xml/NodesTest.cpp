// SPDX-License-Identifier: Apache-2.0
// Steps through trees, deep ones included.

#include "platform/xml/Nodes.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr int deep = 100000;

std::string nested(int levels) {
  std::string text;
  for (int i = 0; i < levels; ++i) text += "<e>";
  text += "core";
  for (int i = 0; i < levels; ++i) text += "</e>";
  return text;
}

TEST(Nodes, ComeInDocumentOrder) {
  pugi::xml_document document;
  document.load_string("<a><b><c/>t</b><d/></a>");
  std::string order;
  for (pugi::xml_node node = document.first_child(); node; node = orvek::nextNode(node)) {
    order += orvek::nodeName(node).isNull() ? "-" : orvek::nodeName(node).toStdString();
  }
  EXPECT_EQ(order, "abc-d");
}

TEST(Nodes, AfterTheLastOneIsNone) {
  pugi::xml_document document;
  document.load_string("<a><b/></a>");
  EXPECT_TRUE(orvek::nextNode(document.child("a").child("b")).empty());
  EXPECT_TRUE(orvek::nextNode({}).empty());
}

TEST(Nodes, HaveTheTextBelowThemForAValue) {
  pugi::xml_document document;
  document.load_string("<a>1<b>2<c>3</c></b><!--no--><![CDATA[4]]></a>");
  EXPECT_EQ(orvek::stringValue(document.child("a")).toStdString(), "1234");
  EXPECT_EQ(orvek::stringValue(document.child("a").child("b")).toStdString(), "23");
  EXPECT_EQ(orvek::stringValue(document).toStdString(), "1234");
  EXPECT_TRUE(orvek::stringValue({}).isNull());
}

TEST(Nodes, AreSteppedThroughAtAnyDepth) {
  pugi::xml_document document;
  ASSERT_TRUE(document.load_string(nested(deep).c_str()));
  EXPECT_EQ(orvek::stringValue(document).toStdString(), "core");
  int count = 0;
  for (pugi::xml_node node = document.first_child(); node; node = orvek::nextNode(node)) ++count;
  EXPECT_EQ(count, deep + 1);
}

TEST(Nodes, GiveTheirContentOrTheirNameAsString) {
  pugi::xml_document document;
  document.load_string("<a>text<b/><!--note--></a>", pugi::parse_default | pugi::parse_comments);
  const pugi::xml_node first = document.child("a").first_child();
  EXPECT_EQ(orvek::nodeString(first).toStdString(), "text");
  EXPECT_EQ(orvek::nodeString(first.next_sibling()).toStdString(), "b");
  EXPECT_EQ(orvek::nodeString(document.child("a").last_child()).toStdString(), "note");
}

}  // namespace
