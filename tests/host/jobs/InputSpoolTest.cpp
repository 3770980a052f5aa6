// SPDX-License-Identifier: Apache-2.0
// Documents that come by a pipe: read once, by whoever prints them.

#include "host/jobs/InputSpool.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <thread>

#include "host/jobs/FilterChain.h"
#include "tests/driver/DriverKit.h"
#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

/// A pipe with a name, and somebody who writes into it once.
class Pipe : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(::mkfifo(QFile::encodeName(name).constData(), 0600), 0); }

  void TearDown() override {
    if (writer.joinable()) writer.join();
  }

  void write(const QByteArray &bytes) {
    writer = std::thread([this, bytes] {
      const int pipe = ::open(QFile::encodeName(name).constData(), O_WRONLY | O_CLOEXEC);
      qsizetype done = 0;
      while (done < bytes.size()) {
        const auto left = static_cast<size_t>(bytes.size() - done);
        done += ::write(pipe, bytes.constData() + done, left);
      }
      ::close(pipe);
    });
  }

  QTemporaryDir folder;
  QString name = folder.filePath(QStringLiteral("pipe"));
  std::thread writer;
  JobControl control;
};

TEST_F(Pipe, IsAFileToThoseWhoNeedOne) {
  const QByteArray bytes(300000, 'x');
  write(bytes);
  DocumentFiles files;
  const QString other = folder.filePath(QStringLiteral("other"));
  writeContents(other, "as it is");
  const auto named = files.of({name, other}, control);
  ASSERT_TRUE(named) << named.failure().line().toStdString();
  EXPECT_TRUE(contentsOf(named.value()[0]) == bytes);
  EXPECT_EQ(named.value()[1], other);
  EXPECT_EQ(files.of({name, other}, control).value(), named.value());
}

TEST_F(Pipe, IsLeftAloneUntilItIsRead) {
  EXPECT_TRUE(checkAllDocuments({name}));
  EXPECT_TRUE(comesOnce(name));
}

TEST_F(Pipe, IsWaitedForUntilTheJobIsCancelled) {
  std::thread canceller([this] {
    ::usleep(200'000);
    control.cancelled = true;
  });
  DocumentFiles files;
  const auto named = files.of({name}, control);
  canceller.join();
  ASSERT_FALSE(named);
  EXPECT_EQ(named.failure().kind, FailureKind::Cancelled);
  EXPECT_FALSE(isEmptyDocument(named.failure()));
}

TEST_F(Pipe, ThatGivesNothingIsNamed) {
  write({});
  DocumentFiles files;
  const auto named = files.of({name}, control);
  ASSERT_FALSE(named);
  EXPECT_EQ(named.failure().line(),
            name + QStringLiteral(": is empty, so there is nothing to print"));
  EXPECT_TRUE(isEmptyDocument(named.failure()));
}

TEST_F(Pipe, PrintsIntoAFile) {
  if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
  write(postScriptDocument(3));
  JobRequest request;
  request.files = {name};
  request.ppdFile = orvekPPD(QStringLiteral("6180"));
  request.outputFile = folder.filePath(QStringLiteral("out.ps"));
  const auto printed = printThroughFilters(request, control);
  ASSERT_TRUE(printed) << printed.failure().line().toStdString();
  EXPECT_EQ(contentsOf(request.outputFile).count("%%Page: "), 3);
}

}  // namespace
}  // namespace orvek::test
