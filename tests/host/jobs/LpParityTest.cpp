// SPDX-License-Identifier: Apache-2.0
// The same wishes make the same job, whether lp or this program sends it.

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QTemporaryDir>

#include "host/jobs/QueueJob.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/PrivateCups.h"

namespace orvek::test {
namespace {

using Options = QMap<QString, QString>;

/// One wish, as a command line of lp and as a request. Neither names queue or document.
struct Wish {
  const char *name;
  QStringList arguments;
  JobRequest request;
};

JobRequest withOptions(const Options &options) {
  JobRequest request;
  request.options = options;
  return request;
}

Wish option(const char *name, const QString &key, const QString &value) {
  return {name, {QStringLiteral("-o"), key + u'=' + value}, withOptions({{key, value}})};
}

template <typename Set>
Wish field(const char *name, const QStringList &arguments, const Set &set) {
  JobRequest request;
  set(request);
  return {name, arguments, request};
}

std::vector<Wish> fieldWishes() {
  return {
      field("nothing", {}, [](JobRequest &) {}),
      field("copies", {QStringLiteral("-n"), QStringLiteral("3")},
            [](JobRequest &r) { r.options.insert(QStringLiteral("copies"), QStringLiteral("3")); }),
      field("title", {QStringLiteral("-t"), QStringLiteral("My title")},
            [](JobRequest &r) { r.title = QStringLiteral("My title"); }),
      field("titleInUnicode", {QStringLiteral("-t"), QStringLiteral("Bericht über 日本")},
            [](JobRequest &r) { r.title = QStringLiteral("Bericht über 日本"); }),
      field("priority", {QStringLiteral("-q"), QStringLiteral("80")},
            [](JobRequest &r) { r.priority = 80; }),
      field("user", {QStringLiteral("-U"), QStringLiteral("anna")},
            [](JobRequest &r) { r.user = QStringLiteral("anna"); }),
      field("pages", {QStringLiteral("-P"), QStringLiteral("1-3,7")},
            [](JobRequest &r) {
              r.options.insert(QStringLiteral("page-ranges"), QStringLiteral("1-3,7"));
            }),
      field("instance", {QStringLiteral("-d"), QStringLiteral("office/draft")},
            [](JobRequest &r) { r.instance = QStringLiteral("draft"); }),
      field("unknownInstance", {QStringLiteral("-d"), QStringLiteral("office/none")},
            [](JobRequest &r) { r.instance = QStringLiteral("none"); }),
  };
}

std::vector<Wish> optionWishes() {
  return {
      option("choice", QStringLiteral("OVKFolding"), QStringLiteral("Saddle")),
      option("flagOfTheDriver", QStringLiteral("OVKEnableBooklet"), QStringLiteral("True")),
      option("numberOfTheDriver", QStringLiteral("OVKGutter"), QStringLiteral("24")),
      option("negativeNumber", QStringLiteral("OVKCreep"), QStringLiteral("-3")),
      option("sides", QStringLiteral("sides"), QStringLiteral("two-sided-long-edge")),
      option("media", QStringLiteral("media"), QStringLiteral("A4")),
      option("pagesPerSheet", QStringLiteral("number-up"), QStringLiteral("4")),
      option("hold", QStringLiteral("job-hold-until"), QStringLiteral("indefinite")),
      option("banners", QStringLiteral("job-sheets"), QStringLiteral("none,none")),
      option("raw", QStringLiteral("raw"), QStringLiteral("true")),
      option("format", QStringLiteral("document-format"), QStringLiteral("application/postscript")),
      option("orientation", QStringLiteral("orientation-requested"), QStringLiteral("4")),
      option("resolution", QStringLiteral("Resolution"), QStringLiteral("600dpi")),
      {"wordsInAValue",
       {QStringLiteral("-o"), QStringLiteral("note='two words'")},
       withOptions({{QStringLiteral("note"), QStringLiteral("two words")}})},
      {"several",
       {QStringLiteral("-o"), QStringLiteral("OVKStapling=Front"), QStringLiteral("-o"),
        QStringLiteral("fit-to-page"), QStringLiteral("-o"), QStringLiteral("nomirror")},
       withOptions({{QStringLiteral("OVKStapling"), QStringLiteral("Front")},
                    {QStringLiteral("fit-to-page"), QStringLiteral("true")},
                    {QStringLiteral("mirror"), QStringLiteral("false")}})},
  };
}

std::vector<Wish> wishes() {
  auto all = fieldWishes();
  for (const Wish &wish : optionWishes()) all.push_back(wish);
  return all;
}

class LpParity : public ::testing::TestWithParam<Wish> {
 protected:
  void SetUp() override {
    if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
    cups = std::make_unique<PrivateCups>();
    cups->addQueue(QStringLiteral("office"), orvekPPD(QStringLiteral("6180")));
    // Jobs of a stopped queue stay as they were made.
    cups->run(QStringLiteral("cupsdisable"), {QStringLiteral("office")});
    cups->run(QStringLiteral("lpoptions"),
              {QStringLiteral("-p"), QStringLiteral("office/draft"), QStringLiteral("-o"),
               QStringLiteral("OVKTonerSaving=True")});
    writeContents(document, postScriptDocument(2));
  }

  int printWithLp(const QStringList &wished) const {
    QStringList arguments{QStringLiteral("-d"), QStringLiteral("office")};
    const auto ran = cups->run(QStringLiteral("lp"), arguments + wished + QStringList{document});
    static const QRegularExpression id(QStringLiteral("office-([0-9]+)"));
    EXPECT_EQ(ran.exitStatus, 0) << ran.errors.toStdString();
    return id.match(ran.output).captured(1).toInt();
  }

  QTemporaryDir folder;
  QString document = folder.filePath(QStringLiteral("document.ps"));
  std::unique_ptr<PrivateCups> cups;
};

TEST_P(LpParity, MakesAJobWithTheSameAttributes) {
  const int byLp = printWithLp(GetParam().arguments);
  JobRequest request = GetParam().request;
  request.queue = QStringLiteral("office");
  request.files = {document};
  JobControl control;
  const auto outcome = submitToQueue(request, control);
  ASSERT_TRUE(outcome) << outcome.failure().line().toStdString();
  const auto expected = cups->comparableJobAttributes(byLp);
  ASSERT_GT(expected.size(), 10);
  EXPECT_EQ(cups->comparableJobAttributes(outcome.value().jobId), expected);
}

INSTANTIATE_TEST_SUITE_P(CommandLines, LpParity, ::testing::ValuesIn(wishes()),
                         [](const auto &wish) { return std::string(wish.param.name); });

}  // namespace
}  // namespace orvek::test
