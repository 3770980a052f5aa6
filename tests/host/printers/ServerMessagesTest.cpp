// SPDX-License-Identifier: Apache-2.0
// Messages between a program and its helper, good ones and others.

#include "host/printers/ServerMessages.h"

#include <gtest/gtest.h>

#include "host/printers/ServerAccess.h"

namespace orvek::test {
namespace {

using namespace std::chrono_literals;

MessageReader readerOf(const QByteArray &bytes) {
  MessageReader reader;
  reader.add(bytes.constData(), bytes.size());
  return reader;
}

TEST(MessageReader, GivesMessagesInTheirOrder) {
  MessageReader reader =
      readerOf(framed({MessageKind::Block, "one"}) + framed({MessageKind::DocumentEnd, {}}));
  const auto first = reader.next();
  ASSERT_TRUE(first);
  EXPECT_EQ(first->kind, MessageKind::Block);
  EXPECT_EQ(first->bytes, "one");
  const auto second = reader.next();
  ASSERT_TRUE(second);
  EXPECT_EQ(second->kind, MessageKind::DocumentEnd);
  EXPECT_FALSE(reader.next());
  EXPECT_FALSE(reader.isBroken());
}

TEST(MessageReader, WaitsForTheRestOfAMessage) {
  const QByteArray bytes = framed({MessageKind::Answer, "answer"});
  MessageReader reader;
  for (qsizetype i = 0; i < bytes.size(); ++i) {
    EXPECT_FALSE(reader.next());
    reader.add(bytes.constData() + i, 1);
  }
  EXPECT_EQ(reader.next()->bytes, "answer");
}

TEST(MessageReader, TakesNoMessageThatWouldFillTheMemory) {
  for (const char kind : {'a', 'r', '\0', '\xff'}) {
    MessageReader reader = readerOf(QByteArray("\x7f\xff\xff\xff", 4) + kind + "more");
    EXPECT_FALSE(reader.next());
    EXPECT_TRUE(reader.isBroken());
  }
}

TEST(Fields, AreSoundAsTheyWereWritten) {
  const QMap<QString, QString> options{{QStringLiteral("sides"), QStringLiteral("one-sided")}};
  const Message message = messageOf(
      MessageKind::Answer, {{QLatin1String("name"), fieldOf(QStringLiteral("office"))},
                            {QLatin1String("none"), fieldOf(QString())},
                            {QLatin1String("texts"), fieldOf(QStringList{QStringLiteral("a")})},
                            {QLatin1String("options"), fieldOf(options)},
                            {QLatin1String("number"), 7},
                            {QLatin1String("flag"), true}});
  Fields fields = Fields::of(message.bytes);
  EXPECT_EQ(fields.text("name"), QStringLiteral("office"));
  EXPECT_TRUE(fields.text("none").isNull());
  EXPECT_EQ(fields.texts("texts"), QStringList{QStringLiteral("a")});
  EXPECT_EQ(fields.options("options"), options);
  EXPECT_EQ(fields.number("number"), 7);
  EXPECT_TRUE(fields.flag("flag"));
  EXPECT_TRUE(fields.isSound());
}

TEST(Fields, AreNotSoundWhereOneIsMissingOrOfAnotherType) {
  const QCborMap map{{QLatin1String("number"), QLatin1String("seven")},
                     {QLatin1String("options"), QCborMap{{1, 2}}},
                     {QLatin1String("texts"), QCborArray{1}}};
  const auto isSoundAfter = [&map](const auto &read) {
    Fields fields(map);
    read(fields);
    return fields.isSound();
  };
  EXPECT_FALSE(isSoundAfter([](Fields &fields) { fields.number("number"); }));
  EXPECT_FALSE(isSoundAfter([](Fields &fields) { fields.options("options"); }));
  EXPECT_FALSE(isSoundAfter([](Fields &fields) { fields.texts("texts"); }));
  EXPECT_FALSE(isSoundAfter([](Fields &fields) { fields.text("none"); }));
  EXPECT_FALSE(isSoundAfter([](Fields &fields) { fields.flag("none"); }));
  EXPECT_FALSE(isSoundAfter([](Fields &fields) { fields.list("none"); }));
}

TEST(Fields, AreNotSoundInBytesThatAreNone) {
  EXPECT_FALSE(Fields::of("no fields").isSound());
  EXPECT_FALSE(Fields::of({}).isSound());
  EXPECT_FALSE(Fields::of(QByteArray(100000, '\x81')).isSound());
}

TEST(FailureMessage, KeepsItsSentencesForTranslation) {
  const Failure failure{
      FailureKind::Io, QStringLiteral("office"),
      Phrase("no print server answers there (%1)", {Phrase::ofSystem(QStringLiteral("Refused"))})};
  const Failure heard = failureIn(failedMessage(failure));
  EXPECT_EQ(heard.line(), failure.line());
  EXPECT_EQ(heard.why.sentence(), failure.why.sentence());
  ASSERT_EQ(heard.why.parts().size(), 1U);
  EXPECT_EQ(heard.why.parts().front().sentence(), "Refused");
}

TEST(FailureMessage, HasNoCharactersThatMoveACursor) {
  const Failure failure{FailureKind::Io, QStringLiteral("a\x1b[2Jb"), QStringLiteral("c\nd")};
  EXPECT_EQ(failureIn(failedMessage(failure)).line(), QStringLiteral("a [2Jb: c d"));
  const Failure turning{FailureKind::Io, QStringLiteral("a\u202Eb"), QStringLiteral("c\u2028d")};
  EXPECT_EQ(failureIn(failedMessage(turning)).line(), QStringLiteral("a b: c d"));
}

TEST(FailureMessage, SaysThatItCannotBeReadWhereThatIsSo) {
  QCborValue deep = QLatin1String("deep");
  for (int i = 0; i < 100; ++i) deep = QCborArray{QLatin1String("%1"), deep};
  const QCborMap odd{{QLatin1String("what"), deep}, {QLatin1String("why"), 7}};
  EXPECT_EQ(failureIn({MessageKind::Failed, "nothing"}).why, unreadableAnswer());
  EXPECT_EQ(failureIn(messageOf(MessageKind::Failed, odd)).why, unreadableAnswer());
}

TEST(FailureMessage, IsNotReadWhereItEndsBehindAKey) {
  const QByteArray whole =
      failedMessage({FailureKind::Io, QStringLiteral("a"), QStringLiteral("b")}).bytes;
  for (qsizetype size = 0; size < whole.size(); ++size) {
    const Failure failure = failureIn({MessageKind::Failed, whole.left(size)});
    EXPECT_EQ(failure.why, unreadableAnswer()) << size;
    EXPECT_TRUE(failure.what.isEmpty()) << size;
  }
}

TEST(ServerPatience, IsTenSecondsOrWhatTheEnvironmentSays) {
  EXPECT_EQ(serverPatience(), 10s);
  qputenv("ORVEK_PRINT_PATIENCE", "0.5");
  EXPECT_EQ(serverPatience(), 500ms);
  for (const char *none : {"0", "-1", "nan", "1e9", "soon", ""}) {
    qputenv("ORVEK_PRINT_PATIENCE", none);
    EXPECT_EQ(serverPatience(), 10s) << none;
  }
  qunsetenv("ORVEK_PRINT_PATIENCE");
}

}  // namespace
}  // namespace orvek::test
