// SPDX-License-Identifier: Apache-2.0
// The ticket: statuses, locks between two writers, and who hears of changes.

#include "platform/printing/PrintSettings.h"

#include <gtest/gtest.h>

#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

const QString gutter = QStringLiteral("OVKGutter");

class PrintSettingsTest : public testing::Test {
 protected:
  std::shared_ptr<Ticket> ticket = std::make_shared<Ticket>();
  PrintSettings panel{ticket};
};

TEST_F(PrintSettingsTest, GivesBackWhatWasWritten) {
  QVariant value;
  EXPECT_EQ(PMPrintSettingsSetValue(&panel, gutter, QStringLiteral("24"), false), noErr);
  EXPECT_EQ(PMPrintSettingsGetValue(&panel, gutter, &value), noErr);
  EXPECT_EQ(value, QVariant(QStringLiteral("24")));
}

TEST_F(PrintSettingsTest, ReadsAnAbsentKeyAsSuccessWithoutAValue) {
  QVariant value = QStringLiteral("old");
  EXPECT_EQ(PMPrintSettingsGetValue(&panel, gutter, &value), noErr);
  EXPECT_FALSE(value.isValid());
}

TEST_F(PrintSettingsTest, KeepsAnEmptyTextApartFromAbsence) {
  QVariant value;
  PMPrintSettingsSetValue(&panel, gutter, QStringLiteral(""), false);
  EXPECT_EQ(PMPrintSettingsGetValue(&panel, gutter, &value), noErr);
  EXPECT_TRUE(value.isValid());
}

TEST_F(PrintSettingsTest, TellsKeysApartByLetterCase) {
  QVariant value;
  PMPrintSettingsSetValue(&panel, gutter, 24, false);
  PMPrintSettingsGetValue(&panel, gutter.toLower(), &value);
  EXPECT_FALSE(value.isValid());
}

TEST_F(PrintSettingsTest, FailsToReadAValueThatIsNeitherTextNorInteger) {
  QVariant value = QStringLiteral("old");
  ticket->setValue(gutter, 1.5);
  EXPECT_EQ(PMPrintSettingsGetValue(&panel, gutter, &value), kPMValueFormatError);
  EXPECT_FALSE(value.isValid());
}

TEST_F(PrintSettingsTest, CanBeAskedForTheStatusAlone) {
  EXPECT_EQ(PMPrintSettingsGetValue(&panel, gutter, nullptr), noErr);
  ticket->setValue(gutter, true);
  EXPECT_EQ(PMPrintSettingsGetValue(&panel, gutter, nullptr), kPMValueFormatError);
}

TEST_F(PrintSettingsTest, FailsWithoutATicket) {
  QVariant value = QStringLiteral("old");
  EXPECT_EQ(PMPrintSettingsGetValue(nullptr, gutter, &value), kPMInvalidParameter);
  EXPECT_FALSE(value.isValid());
  EXPECT_EQ(PMPrintSettingsSetValue(nullptr, gutter, 24, false), kPMInvalidParameter);
}

TEST_F(PrintSettingsTest, FailsOnAHandleOfNoTicket) {
  PrintSettings orphan(nullptr);
  QVariant value = QStringLiteral("old");
  EXPECT_EQ(PMPrintSettingsGetValue(&orphan, gutter, &value), kPMInvalidParameter);
  EXPECT_FALSE(value.isValid());
  EXPECT_EQ(PMPrintSettingsSetValue(&orphan, gutter, 24, true), kPMInvalidParameter);
}

TEST_F(PrintSettingsTest, RefusesAnotherWriterOnALockedKey) {
  PrintSettings other(ticket);
  EXPECT_EQ(panel.set(gutter, 24, true), noErr);
  EXPECT_EQ(other.set(gutter, 36, false), kPMLocked);
  EXPECT_EQ(ticket->value(gutter), QVariant(24));
}

TEST_F(PrintSettingsTest, LetsTheLockingWriterWriteAgain) {
  EXPECT_EQ(panel.set(gutter, 24, true), noErr);
  EXPECT_EQ(panel.set(gutter, 36, false), noErr);
  PrintSettings other(ticket);
  EXPECT_EQ(other.set(gutter, 48, false), kPMLocked) << "an unlocked write must not lift the lock";
}

TEST_F(PrintSettingsTest, LetsEveryoneReadALockedKey) {
  PrintSettings other(ticket);
  QVariant value;
  panel.set(gutter, 24, true);
  EXPECT_EQ(other.get(gutter, &value), noErr);
  EXPECT_EQ(value, QVariant(24));
}

TEST_F(PrintSettingsTest, LocksOneKeyOnly) {
  PrintSettings other(ticket);
  panel.set(gutter, 24, true);
  EXPECT_EQ(other.set(QStringLiteral("OVKCreep"), 1, false), noErr);
}

TEST_F(PrintSettingsTest, LeavesNoEntryBehindARefusedWrite) {
  PrintSettings other(ticket);
  panel.set(gutter, 24, true);
  other.set(gutter, 36, true);
  EXPECT_EQ(ticket->values().size(), 1);
  EXPECT_EQ(panel.set(gutter, 48, false), noErr);
}

TEST_F(PrintSettingsTest, LetsGoOfLocksWithTheirWriter) {
  PrintSettings other(ticket);
  {
    PrintSettings shortLived(ticket);
    shortLived.set(gutter, 24, true);
    ASSERT_EQ(other.set(gutter, 36, false), kPMLocked);
  }
  EXPECT_EQ(other.set(gutter, 36, false), noErr);
}

TEST_F(PrintSettingsTest, KeepsOtherWritersLocksWhenOneGoes) {
  PrintSettings other(ticket);
  panel.set(gutter, 24, true);
  { const PrintSettings shortLived(ticket); }
  EXPECT_EQ(other.set(gutter, 36, false), kPMLocked);
}

TEST(Ticket, LetsItsOwnerWriteLockedKeys) {
  const auto ticket = std::make_shared<Ticket>();
  PrintSettings panel(ticket);
  panel.set(gutter, 24, true);
  ticket->setValue(gutter, 36);
  EXPECT_EQ(ticket->value(gutter), QVariant(36));
}

TEST(Ticket, ListsItsKeysInOrder) {
  Ticket ticket;
  ticket.setValue(QStringLiteral("b"), 2);
  ticket.setValue(QStringLiteral("a"), QStringLiteral("1"));
  EXPECT_EQ(ticket.values().keys(), QStringList({"a", "b"}));
}

TEST(Ticket, ForgetsAKeyThatIsGivenNoValue) {
  const auto ticket = std::make_shared<Ticket>();
  PrintSettings panel(ticket);
  ticket->setValue(gutter, 24);
  ticket->setValue(gutter, QVariant());
  EXPECT_TRUE(ticket->values().isEmpty());
  panel.set(gutter, 24, false);
  panel.set(gutter, QVariant(), false);
  EXPECT_TRUE(ticket->values().isEmpty());
}

TEST(Ticket, TellsItsListenerTheKeyOfEachChange) {
  const auto ticket = std::make_shared<Ticket>();
  PrintSettings panel(ticket);
  QStringList heard;
  ticket->setChangeListener([&heard](const QString &key) { heard << key; });
  ticket->setValue(QStringLiteral("a"), 1);
  panel.set(QStringLiteral("b"), 2, false);
  panel.set(QStringLiteral("b"), 2, true);
  EXPECT_EQ(heard, QStringList({"a", "b", "b"}));
}

TEST(Ticket, DoesNotAnnounceARefusedWrite) {
  const auto ticket = std::make_shared<Ticket>();
  PrintSettings panel(ticket);
  PrintSettings other(ticket);
  panel.set(gutter, 24, true);
  int heard = 0;
  ticket->setChangeListener([&heard](const QString &) { ++heard; });
  other.set(gutter, 36, false);
  EXPECT_EQ(heard, 0);
}

TEST(Ticket, ShowsItsListenerTheNewValue) {
  Ticket ticket;
  QVariant seen;
  ticket.setChangeListener([&](const QString &key) { seen = ticket.value(key); });
  ticket.setValue(gutter, 24);
  EXPECT_EQ(seen, QVariant(24));
}

TEST(Ticket, LetsAListenerEndItself) {
  Ticket ticket;
  QString kept(1000, u'x');
  int heard = 0;
  ticket.setChangeListener([&ticket, &heard, kept](const QString &) {
    ticket.setChangeListener({});
    heard += kept.startsWith(u'x') ? 1 : 0;
  });
  ticket.setValue(gutter, 24);
  ticket.setValue(gutter, 36);
  EXPECT_EQ(heard, 1);
}

}  // namespace
}  // namespace orvek::test
