// SPDX-License-Identifier: Apache-2.0
// What standard options and choices are called where a PPD has keywords and no texts, or none in
// the user's language.

#include "host/ppd/StandardNames.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTranslator>

#include "host/ppd/StandardWords.h"
#include "tests/host/ppd/TestPrinters.h"
#include "tests/printers/PrinterFamily.h"

namespace orvek::test {
namespace {

QString optionOf(const PrinterDescription &printer, const char *option) {
  return printer.option(QLatin1String(option)).text();
}

QString choiceOf(const PrinterDescription &printer, const char *option, const char *choice) {
  return printer.option(QLatin1String(option)).choice(QLatin1String(choice))->text;
}

/// Every word of the catalogue in one made-up language.
class InCapitals : public QTranslator {
 public:
  InCapitals() { QCoreApplication::installTranslator(this); }
  bool isEmpty() const override { return false; }
  QString translate(const char *, const char *text, const char *, int) const override {
    return QString::fromUtf8(text).toUpper();
  }
};

TEST(StandardNames, StandForKeywordsWithoutTexts) {
  const auto printer = openTestPpd(QStringLiteral("keywords.ppd"));
  EXPECT_EQ(optionOf(*printer, "Duplex"), "Two-sided");
  EXPECT_EQ(choiceOf(*printer, "Duplex", "DuplexNoTumble"), "Long edge");
  EXPECT_EQ(choiceOf(*printer, "Duplex", "None"), "Off");
  EXPECT_EQ(optionOf(*printer, "cupsPrintQuality"), "Quality");
  EXPECT_EQ(choiceOf(*printer, "ColorModel", "RGB"), "Color");
  EXPECT_EQ(choiceOf(*printer, "PageSize", "Letter"), "US Letter");
  EXPECT_EQ(choiceOf(*printer, "PageSize", "w288h432"), QStringLiteral("102 × 152 mm"));
  EXPECT_EQ(choiceOf(*printer, "PageSize", "A4.Borderless"), "A4, borderless");
  EXPECT_EQ(choiceOf(*printer, "InputSlot", "Tray2"), "Tray 2");
  EXPECT_EQ(choiceOf(*printer, "Resolution", "1200x600dpi"), QStringLiteral("1200 × 600 dpi"));
  EXPECT_EQ(choiceOf(*printer, "PunchMedia", "DualLeft"), "Two holes, left");
  EXPECT_EQ(choiceOf(*printer, "cupsFinishingTemplate", "staple-top-left"), "One staple, top left");
}

TEST(StandardNames, AreThereForEveryKeywordOfAPpdThatHasNoTexts) {
  const auto printer = openTestPpd(QStringLiteral("keywords.ppd"));
  for (const PrinterOptionGroup &group : printer->options()) {
    for (const PrinterOption &option : group.options) {
      const std::string keyword = option.keyword().toStdString();
      if (keyword.starts_with("OVX")) continue;
      EXPECT_EQ(option.text(), standardOptionName(option.keyword())) << keyword;
      QStringList texts;
      for (const PrinterChoice &choice : option.choices()) {
        texts << choice.text;
        const bool isAName = choice.text != choice.keyword || choice.text.size() <= 2 ||
                             QStringList{"Normal", "Draft", "High", "Labels"}.contains(choice.text);
        EXPECT_TRUE(isAName) << keyword << ' ' << choice.keyword.toStdString();
      }
      EXPECT_EQ(texts.removeDuplicates(), 0) << keyword;
    }
  }
}

TEST(StandardNames, CallEverySwitchOnAndOff) {
  const auto printer = openTestPpd(QStringLiteral("keywords.ppd"));
  EXPECT_EQ(optionOf(*printer, "OVXShiny"), "OVXShiny");
  EXPECT_EQ(choiceOf(*printer, "OVXShiny", "False"), "Off");
  EXPECT_EQ(choiceOf(*printer, "Booklet", "True"), "On");
}

TEST(StandardNames, LeaveWhatTheMakerNamedInTheUsersLanguage) {
  const auto printer = openTestPpd(QStringLiteral("named.ppd"));
  EXPECT_EQ(optionOf(*printer, "Duplex"), "Print Sides");
  EXPECT_EQ(choiceOf(*printer, "Duplex", "DuplexNoTumble"), "Like a Book");
  EXPECT_EQ(choiceOf(*printer, "OVXTint", "RGB"), "Red, Green, Blue");
  const InCapitals translator;
  const UserLanguage german("de");
  const auto translated = openTestPpd(QStringLiteral("named.ppd"));
  EXPECT_EQ(optionOf(*translated, "Duplex"), "Seitenwahl");
  EXPECT_EQ(choiceOf(*translated, "Duplex", "None"), "Nur eine");
}

TEST(StandardNames, StandForWhatTheMakerNamedInAnotherLanguage) {
  const InCapitals translator;
  const UserLanguage german("de");
  const auto printer = openTestPpd(QStringLiteral("named.ppd"));
  EXPECT_EQ(choiceOf(*printer, "Duplex", "DuplexNoTumble"), "LONG EDGE");
  const UserLanguage french("fr");
  const auto other = openTestPpd(QStringLiteral("named.ppd"));
  EXPECT_EQ(optionOf(*other, "Duplex"), "TWO-SIDED");
  EXPECT_EQ(other->option(QStringLiteral("Duplex")).textInPpd(), "Print Sides");
  EXPECT_EQ(choiceOf(*other, "Duplex", "Odd"), "Odd Way");
  EXPECT_EQ(optionOf(*other, "OVXTint"), "Tint");
  EXPECT_EQ(choiceOf(*other, "OVXTint", "RGB"), "Red, Green, Blue");
}

TEST(StandardNames, StayOutWhereTheyAreInNoLanguageOfTheUsers) {
  const UserLanguage dutch("nl");
  const auto printer = openTestPpd(QStringLiteral("named.ppd"));
  EXPECT_EQ(optionOf(*printer, "Duplex"), "Print Sides");
}

TEST(StandardNames, KnowTheWordsOfPrintServers) {
  EXPECT_EQ(standardOptionName(QStringLiteral("print-color-mode")), "Color");
  EXPECT_EQ(standardChoiceName("sides", "two-sided-short-edge"), "Short edge");
  EXPECT_EQ(standardChoiceName("media", "iso_a4_210x297mm"), "A4");
  EXPECT_EQ(standardChoiceName("media", "na_letter_8.5x11in"), "US Letter");
  EXPECT_EQ(standardChoiceName("finishings", "20"), "One staple, top left");
  EXPECT_EQ(standardChoiceName("finishings", "93"), "Half fold");
  EXPECT_EQ(standardChoiceName("print-quality", "5"), "High");
  EXPECT_TRUE(standardChoiceName("finishings", "12345").isNull());
  EXPECT_TRUE(standardChoiceName("vendor-oddity", "auto").isNull());
  EXPECT_TRUE(standardOptionName("vendor-oddity").isNull());
}

TEST(StandardNames, AreLookedUpByPlainKeywords) {
  static const QRegularExpression plain(QStringLiteral("^[a-z0-9]*$"));
  for (const StandardOption &option : standardOptions()) {
    const QString keyword = QString::fromLatin1(option.keywords).section(u' ', 0, 0);
    EXPECT_EQ(standardOptionName(keyword), QLatin1String(option.name));
    for (const StandardWords &words : {option.choices, option.numbered, option.placed}) {
      for (const StandardWord &word : words) {
        for (const QString &each : QString::fromLatin1(word.keywords).split(u' ')) {
          EXPECT_TRUE(plain.match(each).hasMatch()) << word.keywords;
        }
      }
    }
  }
}

TEST(StandardNames, AreTheSameByEachOfTheirKeywords) {
  for (const StandardOption &option : standardOptions()) {
    for (const QString &keyword : QString::fromLatin1(option.keywords).split(u' ')) {
      EXPECT_EQ(standardOptionName(keyword), QLatin1String(option.name));
      for (const StandardWord &word : option.choices) {
        for (const QString &choice : QString::fromLatin1(word.keywords).split(u' ')) {
          EXPECT_EQ(standardChoiceName(keyword, choice), QLatin1String(word.name));
        }
      }
    }
  }
}

}  // namespace
}  // namespace orvek::test
