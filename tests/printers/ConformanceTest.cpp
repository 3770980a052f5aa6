// SPDX-License-Identifier: Apache-2.0
// The PPD files as files: their syntax, their texts in every language, and code for every choice.

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <set>
#include <tuple>

#include "driver/StandardFilters.h"
#include "tests/printers/PrinterFamily.h"

namespace orvek::test {
namespace {

using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

constexpr int toolTimeout = 30'000;  // milliseconds

struct Outcome {
  int status = -1;
  QByteArray text;
};

Outcome run(const QString &program, const QStringList &arguments) {
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(program, arguments);
  if (!process.waitForFinished(toolTimeout)) return {};
  return {process.exitCode(), process.readAll()};
}

QByteArray contents(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Installed equipment is never sent to the printer.
bool isInstallable(const ppd_option_t *option) {
  return std::string(option->keyword).starts_with("OVKOption");
}

// libcups adds this choice to both paper options, with its code and text on the other one.
bool isCustomRegion(const ppd_option_t *option, const ppd_choice_t &choice) {
  return option->keyword == std::string("PageRegion") && choice.choice == std::string("Custom");
}

/// A print server's folder of programs with the filters that the PPDs name: the checker wants to
/// see them, and the driver need not be installed.
class FilterFolder {
 public:
  FilterFolder() {
    QDir(m_folder.path()).mkpath(QStringLiteral("filter"));
    link(QStringLiteral(ORVEK_BINARY_DIR "/cups/filter/orvek-booklet"));
    link(QString::fromStdString(driver::standardFilterPath("commandtops")));
    m_saved = qgetenv(kVariable);
    qputenv(kVariable, m_folder.path().toUtf8());
  }
  ~FilterFolder() {
    if (m_saved.isNull()) {
      qunsetenv(kVariable);
    } else {
      qputenv(kVariable, m_saved);
    }
  }
  FilterFolder(const FilterFolder &) = delete;
  FilterFolder &operator=(const FilterFolder &) = delete;

 private:
  static constexpr const char *kVariable = "CUPS_SERVERBIN";

  void link(const QString &filter) {
    QFile::link(filter,
                m_folder.filePath(QStringLiteral("filter/")) + QFileInfo(filter).fileName());
  }

  QTemporaryDir m_folder;
  QByteArray m_saved;
};

class EveryPrinter : public ::testing::TestWithParam<std::string> {
 protected:
  void SetUp() override { ASSERT_NE(ppd, nullptr) << ppdPath(GetParam()); }

  PPD ppd = openPrinter(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Family, EveryPrinter, ::testing::ValuesIn(models));

TEST_P(EveryPrinter, ConformsToThePPDFormat) {
  const QString tool = QStandardPaths::findExecutable(QStringLiteral("cupstestppd"));
  if (tool.isEmpty()) GTEST_SKIP() << "cupstestppd is not installed";
  if (driver::standardFilterPath("commandtops").empty()) {
    GTEST_SKIP() << "CUPS' own filters are not installed";
  }
  const FilterFolder filters;
  const Outcome test =
      run(tool, {QStringLiteral("-v"), QString::fromStdString(ppdPath(GetParam()))});
  EXPECT_EQ(test.status, 0) << test.text.toStdString();
  EXPECT_FALSE(test.text.contains("FAIL")) << test.text.toStdString();
  EXPECT_FALSE(test.text.contains(" WARN ")) << test.text.toStdString();
}

TEST_P(EveryPrinter, HasItsPagesPrintedByTheDriver) {
  std::vector<std::string> filters;
  for (const ppd_attr_t *line = ppdFindAttr(ppd.get(), "cupsFilter2", nullptr); line != nullptr;
       line = ppdFindNextAttr(ppd.get(), "cupsFilter2", nullptr)) {
    filters.emplace_back(line->value);
  }
  EXPECT_THAT(
      filters,
      ElementsAre("application/vnd.cups-pdf application/vnd.cups-postscript 0 orvek-booklet",
                  "application/postscript application/vnd.cups-postscript 0 orvek-booklet",
                  "application/vnd.cups-postscript application/vnd.cups-postscript 0 -",
                  "application/vnd.cups-command application/vnd.cups-postscript 0 commandtops"));
}

TEST_P(EveryPrinter, IsOneOfOurDriversPrinters) {
  EXPECT_STREQ(ppd->manufacturer, "Orvek");
  EXPECT_EQ(std::string(ppd->modelname), "Orvek " + GetParam());
  EXPECT_TRUE(ppdFindOption(ppd.get(), "OVKImageSmoothing") != nullptr ||
              ppdFindOption(ppd.get(), "OVKHasOVRaster") != nullptr);
}

TEST_P(EveryPrinter, HasNoConflictAsShipped) {
  EXPECT_EQ(ppdConflicts(ppd.get()), 0);
}

TEST_P(EveryPrinter, HasADefaultAmongItsChoicesForEveryOption) {
  for (ppd_option_t *option : allOptions(ppd.get())) {
    EXPECT_NE(ppdFindChoice(option, option->defchoice), nullptr) << option->keyword;
  }
}

TEST_P(EveryPrinter, HasPostScriptForEveryChoiceThatThePrinterMustKnow) {
  for (ppd_option_t *option : allOptions(ppd.get())) {
    if (isInstallable(option)) continue;
    for (int i = 0; i < option->num_choices; ++i) {
      const ppd_choice_t &choice = option->choices[i];
      if (isCustomRegion(option, choice)) continue;
      const std::string code = choice.code != nullptr ? choice.code : "";
      EXPECT_THAT(code, AnyOf(StartsWith("<<"), StartsWith("pop ")))
          << option->keyword << " " << choice.choice;
      EXPECT_TRUE(code.ends_with("setpagedevice")) << option->keyword << " " << choice.choice;
    }
  }
}

TEST_P(EveryPrinter, TellsEveryPairOfChoicesApartInItsCode) {
  for (ppd_option_t *option : allOptions(ppd.get())) {
    if (isInstallable(option)) continue;
    for (int i = 0; i < option->num_choices; ++i) {
      for (int j = 0; j < i; ++j) {
        EXPECT_STRNE(option->choices[i].code, option->choices[j].code) << option->keyword;
      }
    }
  }
}

class EveryPrinterAndLanguage
    : public ::testing::TestWithParam<std::tuple<std::string, std::string>> {
 protected:
  void SetUp() override { ASSERT_NE(ppd, nullptr) << ppdPath(std::get<0>(GetParam())); }

  std::string text(const std::string &section, const std::string &keyword) const {
    return translated(ppd.get(), language, section, keyword);
  }

  std::string language = std::get<1>(GetParam());
  PPD ppd = openPrinterIn(language, std::get<0>(GetParam()));
};

INSTANTIATE_TEST_SUITE_P(Family, EveryPrinterAndLanguage,
                         ::testing::Combine(::testing::ValuesIn(models),
                                            ::testing::ValuesIn(otherLanguages)));

TEST_P(EveryPrinterAndLanguage, HasATextForEveryOptionAndChoice) {
  for (ppd_option_t *option : allOptions(ppd.get())) {
    EXPECT_THAT(text("Translation", option->keyword), Not(IsEmpty())) << option->keyword;
    EXPECT_EQ(option->text, text("Translation", option->keyword));
    for (int i = 0; i < option->num_choices; ++i) {
      const ppd_choice_t &choice = option->choices[i];
      if (isCustomRegion(option, choice)) continue;
      const bool custom = choice.choice == std::string("Custom");
      const std::string own =
          custom ? text("CustomPageSize", "True") : text(option->keyword, choice.choice);
      EXPECT_THAT(own, Not(IsEmpty())) << option->keyword << " " << choice.choice;
      EXPECT_EQ(choice.text, own) << option->keyword << " " << choice.choice;
    }
  }
}

TEST_P(EveryPrinterAndLanguage, HasATextForEveryGroup) {
  for (int g = 0; g < ppd->num_groups; ++g) {
    EXPECT_THAT(text("Translation", ppd->groups[g].name), Not(IsEmpty())) << ppd->groups[g].name;
    EXPECT_EQ(ppd->groups[g].text, text("Translation", ppd->groups[g].name));
  }
}

TEST_P(EveryPrinterAndLanguage, GivesEveryChoiceOfAnOptionATextOfItsOwn) {
  for (ppd_option_t *option : allOptions(ppd.get())) {
    std::set<std::string> seen;
    for (int i = 0; i < option->num_choices; ++i) {
      EXPECT_TRUE(seen.insert(option->choices[i].text).second)
          << option->keyword << " " << option->choices[i].text;
    }
  }
}

TEST_P(EveryPrinter, OffersTheCustomSizeLastAmongItsPapers) {
  const auto sizes = choiceKeywords(ppd.get(), "PageSize");
  ASSERT_FALSE(sizes.empty());
  EXPECT_EQ(sizes.back(), "Custom");
}

TEST(PrinterFamily, IsWhatItsDescriptionsMake) {
  const QString python = QStandardPaths::findExecutable(QStringLiteral("python3"));
  if (python.isEmpty()) GTEST_SKIP() << "python3 is not installed";
  const QTemporaryDir folder;
  const QString script = QStringLiteral(ORVEK_SOURCE_DIR "/printers/make_ppds.py");
  const Outcome made = run(python, {QStringLiteral("-B"), script, folder.path()});
  ASSERT_EQ(made.status, 0) << made.text.toStdString();
  for (const std::string &model : models) {
    const QString name = QStringLiteral("Orvek-%1.ppd").arg(QString::fromStdString(model));
    EXPECT_EQ(contents(folder.filePath(name)), contents(QString::fromStdString(ppdPath(model))))
        << "run printers/make_ppds.py again";
  }
}

TEST(PrinterFamily, ListsTheChoicesThatDriversCountOnInTheirOrder) {
  const PPD ppd = openPrinter("6180");
  ASSERT_NE(ppd, nullptr);
  EXPECT_THAT(choiceKeywords(ppd.get(), "OVKStapling"),
              ElementsAre("None", "Front", "Rear", "Dual", "FrontFlip", "RearFlip", "DualFlip"));
  EXPECT_THAT(choiceKeywords(ppd.get(), "OVKFolding"), ElementsAre("None", "Fold", "Saddle"));
  EXPECT_THAT(choiceKeywords(ppd.get(), "OVKPunching"),
              ElementsAre("None", "2Hole", "3Hole", "4Hole"));
  EXPECT_THAT(choiceKeywords(ppd.get(), "OVKJog"), ElementsAre("False", "True"));
}

TEST(PrinterFamily, ShipsTheLargePrinterWithAllItsEquipment) {
  const PPD ppd = openPrinter("6180");
  ASSERT_NE(ppd, nullptr);
  const auto marked = [&](const char *option) -> std::string {
    const ppd_choice_t *choice = ppdFindMarkedChoice(ppd.get(), option);
    return choice != nullptr ? choice->choice : "";
  };
  EXPECT_EQ(marked("OVKOptionFinisher"), "True");
  EXPECT_EQ(marked("OVKOptionOffsetBin"), "True");
  EXPECT_EQ(marked("OVKOptionPunch"), "Metric_Punch");
}

TEST(PrinterFamily, MakesBookletsOnTheLargePrinterOnly) {
  for (const std::string &model : models) {
    const PPD ppd = openPrinter(model);
    ASSERT_NE(ppd, nullptr);
    const ppd_attr_t *booklet = ppdFindAttr(ppd.get(), "OVKHasBooklet", nullptr);
    EXPECT_EQ(booklet != nullptr && std::string(booklet->value) == "True", model == "6180")
        << model;
  }
}

TEST(PrinterFamily, SendsThePickedFoldToThePrinter) {
  const QString filter = QStringLiteral("/usr/sbin/cupsfilter");
  if (!QFile::exists(filter)) GTEST_SKIP() << "cupsfilter is not installed";
  const QString sample = QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf");
  const Outcome job =
      run(filter, {QStringLiteral("-p"), QString::fromStdString(ppdPath("6180")),
                   QStringLiteral("-m"), QStringLiteral("printer/foo"), QStringLiteral("-o"),
                   QStringLiteral("OVKFolding=Saddle"), sample});
  ASSERT_EQ(job.status, 0) << job.text.right(2000).toStdString();
  EXPECT_TRUE(job.text.contains("%%BeginFeature: *OVKFolding Saddle"));
  EXPECT_FALSE(job.text.contains("%%BeginFeature: *OVKFolding None"));
}

}  // namespace
}  // namespace orvek::test
