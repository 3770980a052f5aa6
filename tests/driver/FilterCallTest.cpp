// SPDX-License-Identifier: Apache-2.0
// Arguments of calls, and documents told apart.

#include "driver/FilterCall.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "driver/JobDocument.h"
#include "tests/support/CapturingFilter.h"

namespace orvek::driver {
namespace {

using ::testing::ElementsAre;

Result<FilterCall> callWith(std::vector<std::string> arguments) {
  std::vector<char *> texts;
  texts.reserve(arguments.size());
  for (std::string &argument : arguments) texts.push_back(argument.data());
  return readFilterCall(texts);
}

TEST(FilterCall, KeepsArgumentsForTheNextFilter) {
  const auto call = callWith({"queue", "7", "me", "a title", "2", "sides=one-sided", "a.pdf"});
  ASSERT_TRUE(call);
  EXPECT_EQ(call.value().printer, "queue");
  EXPECT_THAT(call.value().arguments(),
              ElementsAre("7", "me", "a title", "2", "sides=one-sided", "a.pdf"));
}

TEST(FilterCall, HasNoFileWhereTheDocumentComesByStandardInput) {
  const auto call = callWith({"queue", "7", "me", "", "1", ""});
  ASSERT_TRUE(call);
  EXPECT_THAT(call.value().arguments(), ElementsAre("7", "me", "", "1", ""));
}

TEST(FilterCall, IsRefusedWithTooFewOrTooManyArguments) {
  EXPECT_FALSE(callWith({"queue", "7", "me", "title", "1"}));
  EXPECT_FALSE(callWith({"queue", "7", "me", "title", "1", "", "a.pdf", "b.pdf"}));
}

DocumentKind kindOf(const QByteArray &contents) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("document"));
  orvek::test::writeContents(file, contents);
  FilterCall call;
  call.file = file.toStdString();
  const auto document = lookAtDocument(call);
  EXPECT_TRUE(document);
  return document ? document.value().kind : DocumentKind::PDF;
}

TEST(DocumentKind, IsToldByTheFirstBytes) {
  EXPECT_EQ(kindOf("%!PS-Adobe-3.0\n"), DocumentKind::PostScript);
  EXPECT_EQ(kindOf("\004%!PS\n"), DocumentKind::PostScript);
  EXPECT_EQ(kindOf("\033%-12345X@PJL JOB\n"), DocumentKind::PostScript);
  EXPECT_EQ(kindOf("%PDF-1.4\n"), DocumentKind::PDF);
  EXPECT_EQ(kindOf(""), DocumentKind::PDF);
}

}  // namespace
}  // namespace orvek::driver
