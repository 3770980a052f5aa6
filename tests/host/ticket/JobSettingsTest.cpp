// SPDX-License-Identifier: Apache-2.0
// Job settings and their names in CUPS.

#include "host/ticket/JobOptions.h"

#include <gtest/gtest.h>

namespace orvek::test {
namespace {

using Options = QMap<QString, QString>;

TEST(JobSettings, SayNothingWhereNothingDiffers) {
  EXPECT_EQ(jobSettingOptions(JobSettings()), Options());
}

TEST(JobSettings, SpeakInTheNamesOfCups) {
  JobSettings settings{3, false, "1-3,7", Orientation::ReverseLandscape, true, {}};
  EXPECT_EQ(jobSettingOptions(settings), (Options{{"copies", "3"},
                                                  {"Collate", "False"},
                                                  {"page-ranges", "1-3,7"},
                                                  {"orientation-requested", "5"},
                                                  {"outputorder", "reverse"}}));
}

TEST(JobSettings, AreReadFromTheOptionsOfACommandLine) {
  AskedOptions asked;
  EXPECT_TRUE(asked.take("copies", "4").value());
  EXPECT_TRUE(asked.take("page-ranges", "7,1-3").value());
  EXPECT_TRUE(asked.take("landscape", "true").value());
  EXPECT_TRUE(asked.take("OutputOrder", "Reverse").value());
  EXPECT_TRUE(
      asked.take("multiple-document-handling", "separate-documents-uncollated-copies").value());
  EXPECT_EQ(asked.settings, (JobSettings{4, false, "1-3,7", Orientation::Landscape, true, {}}));
}

TEST(JobSettings, LeaveOtherOptionsToOthers) {
  AskedOptions asked;
  EXPECT_FALSE(asked.take("sides", "one-sided").value());
  EXPECT_EQ(asked.words, Options());
}

TEST(JobSettings, RefuseValuesWithoutSenseAndStayAsTheyWere) {
  AskedOptions asked;
  const Options wrong{{"copies", "0"},        {"Collate", "perhaps"},
                      {"page-ranges", "3-1"}, {"orientation-requested", "9"},
                      {"landscape", "maybe"}, {"outputorder", "random"}};
  for (auto option = wrong.begin(); option != wrong.end(); ++option) {
    const Result<bool> taken = asked.take(option.key(), option.value());
    ASSERT_FALSE(taken.ok()) << option.key().toStdString();
    EXPECT_EQ(taken.failure().kind, FailureKind::Usage);
    EXPECT_EQ(taken.failure().what, QString("-o " + option.key() + "=" + option.value()));
  }
  EXPECT_EQ(asked.settings, JobSettings());
  EXPECT_FALSE(asked.take("copies", "10000").ok());
}

TEST(JobSettings, KeepTheWordsTheyWereAskedIn) {
  AskedOptions asked;
  ASSERT_TRUE(asked.take("landscape", "true").ok());
  ASSERT_TRUE(asked.take("collate", "true").ok());
  EXPECT_EQ(jobSettingOptions(asked.settings, asked),
            (Options{{"landscape", "true"}, {"collate", "true"}}));
}

TEST(JobSettings, DropTheWordsOfWhatWasChangedSince) {
  AskedOptions asked;
  ASSERT_TRUE(asked.take("landscape", "true").ok());
  ASSERT_TRUE(asked.take("copies", "2").ok());
  JobSettings changed = asked.settings;
  changed.orientation = Orientation::Automatic;
  EXPECT_EQ(jobSettingOptions(changed, asked), (Options{{"copies", "2"}}));
}

}  // namespace
}  // namespace orvek::test
