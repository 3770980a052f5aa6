// SPDX-License-Identifier: Apache-2.0
// A printer whose PPD says nothing but keywords: the window has names for them in every language.

#include <QRegularExpression>
#include <QTabWidget>

#include "host/dialog/SummaryLines.h"
#include "host/session/CommonSettings.h"
#include "tests/host/dialog/DialogKit.h"
#include "tests/host/dialog/Languages.h"
#include "tests/host/dialog/VisibleTexts.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class KeywordsIn : public DialogTest, public ::testing::WithParamInterface<const char *> {
 protected:
  void SetUp() override {
    speech = std::make_unique<SpokenLanguage>(GetParam());
    session =
        openSession(QStringLiteral(ORVEK_SOURCE_DIR "/tests/host/ppd/files/keywords.ppd")).take();
    session->pick(QStringLiteral("Duplex"), QStringLiteral("DuplexNoTumble"));
    session->pick(QStringLiteral("ColorModel"), QStringLiteral("Gray"));
    session->pick(QStringLiteral("StapleLocation"), QStringLiteral("SinglePortrait"));
    session->pick(QStringLiteral("Booklet"), QStringLiteral("True"));
    showWindow();
  }

  QStringList allTexts() {
    auto *pages = find<QTabWidget>("pages");
    QStringList texts;
    for (int page = 0; page < pages->count(); ++page) {
      pages->setCurrentIndex(page);
      QCoreApplication::processEvents();
      for (const VisibleText &shown : visibleTexts(*dialog, QStringLiteral("pdeView"))) {
        texts << shown.text;
      }
    }
    for (const SummaryLine &line : summaryLines(*session)) texts << line.title << line.value;
    return texts;
  }

  std::unique_ptr<SpokenLanguage> speech;
};

// Two words run together, or a word and a number: no language of people writes so.
TEST_P(KeywordsIn, NoneIsSeen) {
  static const QRegularExpression keyword(QStringLiteral(
      "[a-z][A-Z]|\\b(None|False|True|RGB|Letter|w288h432)\\b|-left|tray-|[a-z][0-9]"));
  const QStringList texts = allTexts();
  EXPECT_GE(texts.size(), 40);
  for (QString text : texts) {
    if (text.startsWith(QLatin1String("OVX")) || text.startsWith(QLatin1String("Orvek"))) continue;
    if (text == QLatin1String("RGB")) continue;  // of the maker's own option
    text.remove(QStringLiteral("US Letter")).remove(QStringLiteral("US-Letter"));
    EXPECT_FALSE(keyword.match(text).hasMatch()) << text.toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Each, KeywordsIn, allLanguages);

// What a print server says of a printer without PPD, where libcups lacks the user's language.
SessionSetup withoutPpd() {
  SessionSetup setup;
  setup.offers = {
      {"sides", "Two-sided", {{"one-sided", "Off"}, {"two-sided-long-edge", "Long edge"}}, {}},
      {"media", "Paper size", {{"na_letter_8.5x11in", "Letter"}, {"iso_a4_210x297mm", "A4"}}, {}},
      {"output-bin", "Output tray", {{"face-up", "Face up"}, {"tray-2", "Tray 2"}}, {}},
      {"vendor-oddity", "Oddity", {{"a", "One way"}, {"b", "Other way"}}, {}}};
  return setup;
}

class OffersIn : public DialogTest, public ::testing::WithParamInterface<const char *> {
 protected:
  void SetUp() override {
    speech = std::make_unique<SpokenLanguage>(GetParam());
    session = beginSession(withoutPpd()).take();
  }

  std::unique_ptr<SpokenLanguage> speech;
};

TEST_P(OffersIn, AreSaidInTheUsersLanguage) {
  const Setting sides = *commonSetting(*session, CommonSetting::Sides);
  EXPECT_NE(sides.title, "Two-sided");
  EXPECT_NE(sides.choices[0].text, "Off");
  EXPECT_NE(sides.choices[1].text, "Long edge");
  const Setting paper = *commonSetting(*session, CommonSetting::PaperSize);
  EXPECT_NE(paper.choices[0].text, "Letter");
  EXPECT_EQ(paper.choices[1].text, "A4");
  const QList<Setting> further = furtherSettings(*session);
  EXPECT_NE(further[0].title, "Output tray");
  EXPECT_NE(further[0].choices[1].text, "Tray 2");
}

TEST_P(OffersIn, StayAsTheyWereGivenWhereTheyAreNoStandardOnes) {
  const Setting oddity = furtherSettings(*session).last();
  EXPECT_EQ(oddity.title, "Oddity");
  EXPECT_EQ(oddity.choices[0].text, "One way");
}

INSTANTIATE_TEST_SUITE_P(Each, OffersIn, otherLanguages);

}  // namespace
