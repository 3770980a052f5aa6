// SPDX-License-Identifier: Apache-2.0
// Files are new and whole or old and whole, and what can't be replaced is written into.

#include "platform/system/WholeFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>
#include <cerrno>
#include <csignal>
#include <thread>

namespace {

// What the next calls of fsync answer, and how many there were.
int synchronizingError = 0;
int synchronized = 0;

}  // namespace

// In the library's place: a disk that fails can't be had for a test.
extern "C" int fsync(int descriptor) {
  ++synchronized;
  if (synchronizingError == 0) return static_cast<int>(::syscall(SYS_fsync, descriptor));
  errno = synchronizingError;
  return -1;
}

namespace orvek::test {
namespace {

class WholeFileTest : public ::testing::Test {
 protected:
  void SetUp() override { synchronized = 0; }
  void TearDown() override { synchronizingError = 0; }

  static QByteArray contentsOf(const QString &file) {
    QFile read(file);
    return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray();
  }
  QStringList entries() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }

  QTemporaryDir folder;
  QString path = folder.filePath(QStringLiteral("kept.json"));
};

TEST_F(WholeFileTest, ReplacesWhatWasThere) {
  ASSERT_TRUE(writeFile(path, "old and longer").ok());
  ASSERT_TRUE(writeFile(path, "new").ok());
  EXPECT_EQ(contentsOf(path), "new");
  EXPECT_EQ(entries(), QStringList{QStringLiteral("kept.json")});
}

TEST_F(WholeFileTest, IsOnTheDiskBeforeItTakesTheOldOnesPlace) {
  ASSERT_TRUE(writeFile(path, "old").ok());
  synchronized = 0;
  ASSERT_TRUE(writeFile(path, "new").ok());
  // The file itself, and the folder that knows its name.
  EXPECT_EQ(synchronized, 2);
}

TEST_F(WholeFileTest, KeepsTheOldOneWhereTheDiskFails) {
  ASSERT_TRUE(writeFile(path, "old").ok());
  synchronizingError = EIO;
  const Status written = writeFile(path, "new");
  ASSERT_FALSE(written.ok());
  EXPECT_EQ(written.failure().kind, FailureKind::Io);
  EXPECT_EQ(written.failure().line(), path + QStringLiteral(": Input/output error"));
  EXPECT_EQ(contentsOf(path), "old");
  EXPECT_EQ(entries(), QStringList{QStringLiteral("kept.json")});
}

TEST_F(WholeFileTest, IsWrittenWhereAFileSystemKnowsNoSynchronizing) {
  synchronizingError = EINVAL;
  ASSERT_TRUE(writeFile(path, "new").ok());
  EXPECT_EQ(contentsOf(path), "new");
}

// In a process of its own: a limit that was lowered can't be raised again by everybody.
int statusOfWritingBeyondALimit(const QString &path) {
  const pid_t child = ::fork();
  if (child == 0) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{16, 16};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    const Status written = writeFile(path, QByteArray(100, 'x'));
    ::_exit(written ? 0 : 1);
  }
  int status = -1;
  ::waitpid(child, &status, 0);
  return status;
}

TEST_F(WholeFileTest, KeepsTheOldOneWhereThereIsNoRoomForAll) {
  ASSERT_TRUE(writeFile(path, "old").ok());
  const int status = statusOfWritingBeyondALimit(path);
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 1);
  EXPECT_EQ(contentsOf(path), "old");
}

TEST_F(WholeFileTest, LeavesAFileAloneThatMayNotBeWritten) {
  if (::geteuid() == 0) GTEST_SKIP() << "to root every file may be written";
  ASSERT_TRUE(writeFile(path, "old").ok());
  ::chmod(path.toLocal8Bit().constData(), 0400);
  EXPECT_FALSE(writeFile(path, "new").ok());
  EXPECT_EQ(contentsOf(path), "old");
}

TEST_F(WholeFileTest, WritesIntoADeviceAndSaysThatItIsFull) {
  ASSERT_TRUE(writeFile(QStringLiteral("/dev/null"), "x").ok());
  const Status written = writeFile(QStringLiteral("/dev/full"), "x");
  ASSERT_FALSE(written.ok());
  EXPECT_EQ(written.failure().line(), QStringLiteral("/dev/full: No space left on device"));
  for (const char *device : {"/dev/null", "/dev/full"}) {
    struct stat entry {};
    ASSERT_EQ(::stat(device, &entry), 0);
    EXPECT_TRUE(S_ISCHR(entry.st_mode)) << device;
  }
}

TEST_F(WholeFileTest, WritesIntoAPipeThatHasAName) {
  const QString pipe = folder.filePath(QStringLiteral("pipe"));
  ASSERT_EQ(::mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
  QByteArray read;
  std::thread reader([&] { read = contentsOf(pipe); });
  // More than a pipe holds: the writer has to wait for the reader.
  const QByteArray bytes(300000, 'x');
  EXPECT_TRUE(writeFile(pipe, bytes).ok());
  reader.join();
  EXPECT_EQ(read, bytes);
  struct stat entry {};
  ASSERT_EQ(::stat(pipe.toLocal8Bit().constData(), &entry), 0);
  EXPECT_TRUE(S_ISFIFO(entry.st_mode));
}

TEST_F(WholeFileTest, GoesOnWhereAnOpenStreamStands) {
  QFile redirected(path);
  ASSERT_TRUE(redirected.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
  redirected.write("before ");
  ASSERT_TRUE(writeFile(QStringLiteral("/dev/fd/%1").arg(redirected.handle()), "between ").ok());
  redirected.write("after");
  EXPECT_EQ(contentsOf(path), "before between after");
}

}  // namespace
}  // namespace orvek::test
