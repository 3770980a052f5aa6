// SPDX-License-Identifier: Apache-2.0
// The version checks. They keep their first answer for the process, so each question is asked in a
// child of its own.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Common/Utilities.h"
#include "platform/system/Gestalt.h"

namespace {

constexpr int on107 = 1;
constexpr int on1010 = 2;

int bothChecks() {
  return (RunningOn107OrLater() ? on107 : 0) | (RunningOn1010OrLater() ? on1010 : 0);
}

template <class Question>
int inAChild(Question question) {
  const pid_t child = fork();
  if (child == 0) _exit(question());
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void pretend(std::int32_t major, std::int32_t minor, std::int32_t bugFix) {
  orvek::setGestaltForTesting(gestaltSystemVersionMajor, major);
  orvek::setGestaltForTesting(gestaltSystemVersionMinor, minor);
  orvek::setGestaltForTesting(gestaltSystemVersionBugFix, bugFix);
}

int checksOn(std::int32_t major, std::int32_t minor, std::int32_t bugFix) {
  return inAChild([=] {
    pretend(major, minor, bugFix);
    return bothChecks();
  });
}

TEST(SystemVersion, Of1068IsBeforeBoth) {
  EXPECT_EQ(checksOn(10, 6, 8), 0);
}

TEST(SystemVersion, Of1070IsOnOnlyTheFirst) {
  EXPECT_EQ(checksOn(10, 7, 0), on107);
  EXPECT_EQ(checksOn(10, 9, 5), on107);
}

TEST(SystemVersion, Of10100IsOnBoth) {
  EXPECT_EQ(checksOn(10, 10, 0), on107 | on1010);
}

TEST(SystemVersion, OfMajor11IsOnBothWhateverTheMinor) {
  EXPECT_EQ(checksOn(11, 0, 0), on107 | on1010);
}

TEST(SystemVersion, OfAMajorBelow10IsBeforeBoth) {
  EXPECT_EQ(checksOn(9, 22, 0), 0);
}

TEST(SystemVersion, ThatCantBeToldIsBeforeBothAndStaysSo) {
  EXPECT_EQ(inAChild([] {
              orvek::clearGestaltForTesting();
              const int before = bothChecks();
              pretend(11, 0, 0);
              return before | bothChecks();
            }),
            0);
}

TEST(SystemVersion, IsAskedOnlyOnce) {
  EXPECT_EQ(inAChild([] {
              pretend(10, 10, 0);
              bothChecks();
              pretend(10, 4, 0);
              return bothChecks();
            }),
            on107 | on1010);
}

TEST(SystemVersion, IsAlwaysPast105) {
  orvek::clearGestaltForTesting();
  EXPECT_TRUE(RunningOn105OrLater());
}

}  // namespace
