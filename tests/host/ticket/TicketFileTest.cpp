// SPDX-License-Identifier: Apache-2.0
// Tickets as files.

#include "host/ticket/TicketFile.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QTemporaryDir>
#include <limits>

namespace orvek::test {
namespace {

Failure failureOf(const QByteArray &json) {
  const Result<TicketValues> ticket = parseTicket(json, QStringLiteral("t.json"));
  EXPECT_FALSE(ticket.ok()) << json.constData();
  return ticket.ok() ? Failure{} : ticket.failure();
}

TEST(TicketFile, KeepsTextTextAndIntegersIntegers) {
  const auto ticket = parseTicket(R"({"OVKGutter": "24", "nup": 4, "empty": ""})", "t.json");
  ASSERT_TRUE(ticket.ok());
  EXPECT_EQ(ticket.value().value("OVKGutter").metaType().id(), QMetaType::QString);
  EXPECT_EQ(ticket.value().value("nup"), QVariant(qlonglong(4)));
  EXPECT_EQ(ticket.value().value("nup").metaType().id(), QMetaType::LongLong);
  EXPECT_FALSE(ticket.value().value("empty").toString().isNull());
  EXPECT_EQ(ticketToJson(ticket.value()),
            (QJsonObject{{"OVKGutter", "24"}, {"nup", 4}, {"empty", ""}}));
}

TEST(TicketFile, KeepsBigIntegersExactly) {
  const auto ticket = parseTicket(R"({"n": 9007199254740993, "m": -5000000000})", "t.json");
  ASSERT_TRUE(ticket.ok());
  EXPECT_EQ(ticket.value().value("n").toLongLong(), 9007199254740993);
  EXPECT_EQ(ticket.value().value("m").toLongLong(), -5000000000);
}

TEST(TicketFile, TakesTheNearestIntegerWhereOneIsTooBig) {
  const auto ticket = parseTicket(R"({"n": 99999999999999999999, "m": -1e30})", "t.json");
  ASSERT_TRUE(ticket.ok());
  EXPECT_EQ(ticket.value().value("n").toLongLong(), std::numeric_limits<qint64>::max());
  EXPECT_EQ(ticket.value().value("m").toLongLong(), std::numeric_limits<qint64>::min());
}

TEST(TicketFile, NamesTheLineOfASyntaxError) {
  const Failure failure = failureOf("{\n\"a\": \"b\",\n\"c\" 1}");
  EXPECT_EQ(failure.kind, FailureKind::Invalid);
  EXPECT_EQ(failure.what, "t.json:3");
}

TEST(TicketFile, NamesTheKeyOfAValueThatIsNeitherTextNorInteger) {
  for (const char *value : {"true", "null", "[1]", "{}", "1.5"}) {
    const Failure failure = failureOf(QByteArray("{\"OVKCreep\": ") + value + "}");
    EXPECT_EQ(failure.kind, FailureKind::Invalid);
    EXPECT_THAT(failure.why.toStdString(), testing::HasSubstr("OVKCreep")) << value;
  }
}

TEST(TicketFile, RefusesWhatIsNoObject) {
  for (const char *json : {"", "[]", "\"text\"", "7", "{\"a\": \"\xff\"}", "{\"a\":1} x"}) {
    EXPECT_EQ(failureOf(json).kind, FailureKind::Invalid) << json;
  }
}

TEST(TicketFile, SaysWhichFileCannotBeRead) {
  const Result<TicketValues> ticket = readTicket(QStringLiteral("/nowhere/t.json"));
  ASSERT_FALSE(ticket.ok());
  EXPECT_EQ(ticket.failure().kind, FailureKind::Io);
  EXPECT_EQ(ticket.failure().what, "/nowhere/t.json");
  EXPECT_EQ(readTicket(QStringLiteral("/")).failure().kind, FailureKind::Io);
}

TEST(TicketFile, RefusesWhatIsTooLargeForATicket) {
  const QTemporaryDir dir;
  QFile file(dir.filePath("large.json"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  const QByteArray begin("{\"a\": \"");
  const QByteArray end("\"}");
  file.write(begin + QByteArray(largestSettings - begin.size() - end.size(), 'x') + end);
  file.flush();
  EXPECT_TRUE(readTicket(file.fileName()).ok());
  file.write(" ");
  file.close();
  const auto ticket = readTicket(file.fileName());
  ASSERT_FALSE(ticket.ok());
  EXPECT_EQ(ticket.failure().kind, FailureKind::Invalid);
  EXPECT_EQ(ticket.failure().line(),
            file.fileName() + ": is larger than 1 MB, as no ticket and no preset is");
}

TEST(TicketFile, ReadsBackWhatItWrote) {
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("t.json"));
  const TicketValues values{{"OVKGutter", "24"}, {"nup", qlonglong(4)}, {"Größe", "A4 \"quer\""}};
  ASSERT_TRUE(writeTicket(path, values).ok());
  EXPECT_EQ(readTicket(path).value(), values);
}

TEST(TicketFile, LeavesTheOldFileWhereTheNewCannotBeWritten) {
  const Status written = writeTicket(QStringLiteral("/nowhere/t.json"), {{"a", "b"}});
  ASSERT_FALSE(written.ok());
  EXPECT_EQ(written.failure().kind, FailureKind::Io);
  EXPECT_EQ(written.failure().what, "/nowhere/t.json");
}

TEST(TicketFile, WritesToADeviceThatCannotBeReplaced) {
  EXPECT_TRUE(writeTicket(QStringLiteral("/dev/null"), {{"a", "b"}}).ok());
  EXPECT_TRUE(QFile::exists(QStringLiteral("/dev/null")));
  EXPECT_FALSE(writeTicket(QStringLiteral("/dev/full"), {{"a", "b"}}).ok());
}

}  // namespace
}  // namespace orvek::test
