// SPDX-License-Identifier: Apache-2.0
// Conflicts resolved here against libcups' own way, on printers made at random; and how often
// libcups is asked at all.

#include "host/ppd/PlainConstraints.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <QRandomGenerator>

#include "host/ppd/Constraints.h"
#include "host/ppd/MarksTrial.h"
#include "platform/printing/PPD.h"
#include "tests/support/ExclusivePpd.h"

namespace {

int callsOfLibcups = 0;

}  // namespace

/// In front of libcups' own, which it calls.
extern "C" int cupsResolveConflicts(ppd_file_t *ppd, const char *option, const char *choice,
                                    int *count, cups_option_t **options) {
  static auto *const next =
      reinterpret_cast<decltype(&cupsResolveConflicts)>(::dlsym(RTLD_NEXT, "cupsResolveConflicts"));
  ++callsOfLibcups;
  return next(ppd, option, choice, count, options);
}

extern "C" int cupsGetConflicts(ppd_file_t *ppd, const char *option, const char *choice,
                                cups_option_t **options) {
  static auto *const next =
      reinterpret_cast<decltype(&cupsGetConflicts)>(::dlsym(RTLD_NEXT, "cupsGetConflicts"));
  ++callsOfLibcups;
  return next(ppd, option, choice, options);
}

/// Looks at all constraints once it has marked.
extern "C" int ppdMarkOption(ppd_file_t *ppd, const char *option, const char *choice) {
  static auto *const next =
      reinterpret_cast<decltype(&ppdMarkOption)>(::dlsym(RTLD_NEXT, "ppdMarkOption"));
  ++callsOfLibcups;
  return next(ppd, option, choice);
}

namespace orvek::test {
namespace {

QByteArray optionText(QRandomGenerator &random, int number) {
  const QByteArray name = "Option" + QByteArray::number(number);
  const int choices = random.bounded(2, 5);
  QByteArray text = "*OpenUI *" + name + "/Text: PickOne\n*Default" + name + ": C" +
                    QByteArray::number(random.bounded(choices)) + "\n";
  for (int i = 0; i < choices; ++i) {
    text += "*" + name + " C" + QByteArray::number(i) + "/T: \"\"\n";
  }
  return text + "*CloseUI: *" + name + "\n";
}

/// Of "Option0", which is equipment, and others that constraints name.
QByteArray randomText(QRandomGenerator &random, int options) {
  QByteArray text = ppdHead("R") + "*OpenGroup: InstallableOptions/I\n";
  text += optionText(random, 0) + "*CloseGroup: InstallableOptions\n*OpenGroup: General/G\n";
  for (int i = 1; i < options; ++i) text += optionText(random, i);
  text += "*CloseGroup: General\n";
  const auto side = [&]() -> QByteArray {
    return "*Option" + QByteArray::number(random.bounded(1, options)) + " C" +
           QByteArray::number(random.bounded(2));
  };
  for (int i = random.bounded(1, 14); i > 0; --i) {
    const QByteArray one = side();
    const QByteArray other = side();
    if (random.bounded(3) == 0) {
      text += "*cupsUIConstraints: \"" + one + " " + other +
              (random.bounded(2) == 0 ? " " + side() : QByteArray()) + "\"\n";
    } else {
      text += "*UIConstraints: " + one + " " + other + "\n";
      if (random.bounded(4) != 0) text += "*UIConstraints: " + other + " " + one + "\n";
    }
  }
  return text;
}

class PlainConstraintsTest : public testing::Test {
 protected:
  std::shared_ptr<PrinterDescription> open(const QByteArray &text) const {
    QFile file(folder.filePath(QStringLiteral("random.ppd")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    file.close();
    auto printer = PrinterDescription::open(file.fileName());
    EXPECT_TRUE(printer) << printer.failure().line().toStdString() << "\n" << text.constData();
    return printer ? printer.take() : nullptr;
  }

  QTemporaryDir folder;
};

/// What libcups listed, which is freed.
QList<OptionChoice> taken(int count, cups_option_t *options) {
  QList<OptionChoice> all;
  for (int i = 0; i < count; ++i) {
    all.append({QString::fromUtf8(options[i].name), QString::fromUtf8(options[i].value)});
  }
  cupsFreeOptions(count, options);
  return all;
}

std::optional<QList<OptionChoice>> resolvedByLibcups(ppd_file_t *ppd, const ppd_choice_t *pick) {
  int count = 0;
  cups_option_t *options = nullptr;
  if (cupsResolveConflicts(ppd, pick->option->keyword, pick->choice, &count, &options) == 0) {
    return std::nullopt;
  }
  return taken(count, options);
}

QList<OptionChoice> conflictsByLibcups(ppd_file_t *ppd, const ppd_choice_t *pick) {
  cups_option_t *options = nullptr;
  const int count = cupsGetConflicts(ppd, pick->option->keyword, pick->choice, &options);
  return taken(count, options);
}

std::string textOf(const std::optional<QList<OptionChoice>> &choices) {
  if (!choices) return "none";
  QString text;
  for (const OptionChoice &choice : *choices) text += choice.option + u'=' + choice.choice + u' ';
  return text.toStdString();
}

/// What was compared.
struct Compared {
  int resolved = 0;
  int unresolved = 0;
  int conflicts = 0;
};

void compareAllPicks(const PrinterDescription &printer, QRandomGenerator &random, Compared *done) {
  const PlainConstraints *plain = printer.plainConstraints();
  ASSERT_NE(plain, nullptr);
  Marks marks(printer);
  marks.markDefaults();
  const QList<PrinterOptionGroup> groups = printer.options();
  for (const PrinterOption &option : groups.last().options) {
    const QList<PrinterChoice> choices = option.choices();
    const QString choice = choices.at(random.bounded(int(choices.size()))).keyword;
    marks.mark(option.keyword(), choice);
    const ppd_choice_t *pick = plain->pickFor({option.keyword(), choice});
    if (pick == nullptr) continue;
    ASSERT_EQ(plain->isInConflict(pick), marks.isInConflict(option.keyword()))
        << option.keyword().toStdString() << " among " << textOf(marks.all());
    const QList<OptionChoice> conflicts = plain->conflictsOf(pick);
    ASSERT_EQ(textOf(conflicts), textOf(conflictsByLibcups(printer.lend(), pick)))
        << option.keyword().toStdString() << " among " << textOf(marks.all());
    done->conflicts += int(conflicts.size());
    const auto ours = plain->resolutionOf(pick);
    ASSERT_EQ(textOf(ours), textOf(resolvedByLibcups(printer.lend(), pick)))
        << option.keyword().toStdString() << " among " << textOf(marks.all());
    ++(ours ? done->resolved : done->unresolved);
  }
}

TEST_F(PlainConstraintsTest, AreResolvedAsLibcupsResolvesThem) {
  QRandomGenerator random(20261122);
  Compared done;
  for (int i = 0; i < 1500 && !HasFatalFailure(); ++i) {
    SCOPED_TRACE(i);
    const QByteArray text = randomText(random, random.bounded(3, 9));
    const auto printer = open(text);
    ASSERT_TRUE(printer);
    compareAllPicks(*printer, random, &done);
    ASSERT_FALSE(HasFatalFailure()) << text.constData();
  }
  EXPECT_GT(done.resolved, 1000);
  EXPECT_GT(done.unresolved, 100);
  EXPECT_GT(done.conflicts, 1000);
}

TEST_F(PlainConstraintsTest, AreLeftToLibcupsWhereTheyAreNotPlain) {
  QRandomGenerator random(1);
  const QByteArray text = randomText(random, 4);
  EXPECT_NE(open(text)->plainConstraints(), nullptr);
  for (const char *line :
       {"*UIConstraints: *Option2 *Option1 C1\n", "*UIConstraints: *Option2 C1 *Missing C1\n",
        "*UIConstraints: *Option2 C1 *Option1 Missing\n",
        "*UIConstraints: *Option0 C1 *Option1 C1\n",
        "*cupsUIConstraints own: \"*Option2 C1 *Option1 C1\"\n",
        "*cupsUIConstraints: \"*Option2 *Option1 C1\"\n"}) {
    EXPECT_EQ(open(text + line)->plainConstraints(), nullptr) << line;
  }
  EXPECT_EQ(PrinterDescription::none().plainConstraints(), nullptr);
}

class ExclusiveOptions : public testing::TestWithParam<ExclusivePpd::Form> {};

// Whatever of libcups looks at all constraints is a tenth of a second for each of these, or for all
// marks that one of them moves, whatever the machine.
TEST_P(ExclusiveOptions, NeedNoLibcupsToBeResolved) {
  constexpr int options = 60;
  const ExclusivePpd ppd(options, GetParam(), "On");
  const auto printer = PrinterDescription::open(ppd.path()).take();
  Marks marks(*printer);
  marks.markDefaults();
  ASSERT_EQ(marks.conflicts().size(), options);
  callsOfLibcups = 0;
  for (const int number : {0, 30, options - 1}) {
    const QString option = QStringLiteral("Option%1").arg(number);
    const Resolution on = tryPick(marks, {option, QStringLiteral("On")});
    EXPECT_TRUE(on.marked);
    EXPECT_EQ(on.changes.size(), options - 1);
    EXPECT_EQ(tryPick(marks, {option, QStringLiteral("Off")}).marked, true);
  }
  EXPECT_EQ(callsOfLibcups, 0);
}

INSTANTIATE_TEST_SUITE_P(BothForms, ExclusiveOptions,
                         testing::Values(ExclusivePpd::Form::UIConstraints,
                                         ExclusivePpd::Form::CupsUIConstraints));

}  // namespace
}  // namespace orvek::test
