// SPDX-License-Identifier: Apache-2.0
// Nothing half-written, the old file kept, devices taken as they are.

#include "host/jobs/OutputTarget.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <csignal>

#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

const auto patient = [] { return true; };

class OutputTargetTest : public ::testing::Test {
 protected:
  QTemporaryDir folder;
  QString path = folder.filePath(QStringLiteral("out.ps"));
  QStringList entries() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }
};

TEST_F(OutputTargetTest, ReplacesTheOldFileOnCommit) {
  writeContents(path, "old");
  auto target = OutputTarget::open(path);
  ASSERT_TRUE(target);
  ASSERT_TRUE(target.value()->write("new bytes", patient).ok());
  EXPECT_EQ(contentsOf(path), "old");
  ASSERT_TRUE(target.value()->commit().ok());
  EXPECT_EQ(contentsOf(path), "new bytes");
}

TEST_F(OutputTargetTest, KeepsTheOldFileAndLeavesNothingWhenDropped) {
  writeContents(path, "old");
  {
    auto target = OutputTarget::open(path);
    ASSERT_TRUE(target.value()->write("half", patient).ok());
  }
  EXPECT_EQ(contentsOf(path), "old");
  EXPECT_EQ(entries(), QStringList{QStringLiteral("out.ps")});
}

bool hasFilesWithoutAName(const QString &folder) {
  const int file = ::open(folder.toLocal8Bit().constData(), O_TMPFILE | O_WRONLY, 0600);
  if (file < 0) return false;
  ::close(file);
  return true;
}

TEST_F(OutputTargetTest, LeavesNothingBehindWhenTheProgramIsKilled) {
  if (!hasFilesWithoutAName(folder.path())) GTEST_SKIP() << "every file has a name here";
  const pid_t child = ::fork();
  if (child == 0) {
    auto target = OutputTarget::open(path);
    const bool isWritten = target && target.value()->write("half", patient).ok();
    ::kill(::getpid(), isWritten ? SIGKILL : SIGTERM);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  ASSERT_EQ(WTERMSIG(status), SIGKILL);
  EXPECT_EQ(entries(), QStringList());
}

mode_t permissionsOf(const QString &file) {
  struct stat entry {};
  EXPECT_EQ(::stat(file.toLocal8Bit().constData(), &entry), 0);
  return entry.st_mode & 0777;
}

TEST_F(OutputTargetTest, KeepsTheOldFilesPermissionsAndGivesANewOneTheUsualOnes) {
  const mode_t mask = ::umask(027);
  for (const char *bytes : {"new", "newer"}) {
    auto target = OutputTarget::open(path);
    ASSERT_TRUE(target.value()->write(bytes, patient).ok());
    ASSERT_TRUE(target.value()->commit().ok());
    EXPECT_EQ(permissionsOf(path), bytes == QByteArray("new") ? 0640U : 0604U);
    ::chmod(path.toLocal8Bit().constData(), 0604);
  }
  ::umask(mask);
  EXPECT_EQ(entries(), QStringList{QStringLiteral("out.ps")});
}

TEST_F(OutputTargetTest, WritesWhereALinkLeads) {
  const QString link = folder.filePath(QStringLiteral("link.ps"));
  ASSERT_TRUE(QFile::link(path, link));
  for (const char *bytes : {"new", "newer"}) {
    auto target = OutputTarget::open(link);
    ASSERT_TRUE(target.value()->write(bytes, patient).ok());
    ASSERT_TRUE(target.value()->commit().ok());
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(contentsOf(path), bytes);
  }
}

TEST_F(OutputTargetTest, NamesAFolderThatIsMissing) {
  const auto target = OutputTarget::open(folder.filePath(QStringLiteral("none/out.ps")));
  ASSERT_FALSE(target);
  EXPECT_TRUE(target.failure().what.endsWith(QStringLiteral("none/out.ps")));
  EXPECT_FALSE(target.failure().why.isEmpty());
}

TEST_F(OutputTargetTest, TakesANullDeviceAndLeavesItThere) {
  auto target = OutputTarget::open(QStringLiteral("/dev/null"));
  ASSERT_TRUE(target);
  EXPECT_TRUE(target.value()->write(QByteArray(100000, 'x'), patient).ok());
  EXPECT_TRUE(target.value()->commit().ok());
  struct stat entry {};
  ASSERT_EQ(::stat("/dev/null", &entry), 0);
  EXPECT_TRUE(S_ISCHR(entry.st_mode));
}

TEST_F(OutputTargetTest, SaysThatADeviceIsFull) {
  auto target = OutputTarget::open(QStringLiteral("/dev/full"));
  ASSERT_TRUE(target);
  const Status written = target.value()->write("x", patient);
  ASSERT_FALSE(written.ok());
  EXPECT_EQ(written.failure().line(), QStringLiteral("/dev/full: No space left on device"));
}

TEST_F(OutputTargetTest, GoesOnWhereARedirectedStreamStands) {
  QTemporaryFile redirected;
  ASSERT_TRUE(redirected.open());
  redirected.write("before ");
  redirected.flush();
  auto target = OutputTarget::open(QStringLiteral("/dev/fd/%1").arg(redirected.handle()));
  ASSERT_TRUE(target);
  ASSERT_TRUE(target.value()->write("after", patient).ok());
  EXPECT_EQ(contentsOf(redirected.fileName()), "before after");
}

TEST_F(OutputTargetTest, StopsWaitingForAPipeThatNobodyReads) {
  int ends[2];
  ASSERT_EQ(::pipe(ends), 0);
  auto target = OutputTarget::open(QStringLiteral("/dev/fd/%1").arg(ends[1]));
  int asked = 0;
  const auto impatient = [&asked] { return ++asked < 40; };
  EXPECT_TRUE(target.value()->write(QByteArray(1 << 20, 'x'), impatient).ok());
  EXPECT_EQ(asked, 40);
  ::close(ends[0]);
  ::close(ends[1]);
}

}  // namespace
}  // namespace orvek::test
