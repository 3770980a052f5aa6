// SPDX-License-Identifier: Apache-2.0
// A document that is piped into the program and printed from its window by keyboard alone.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QApplication>
#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QFile>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <thread>

#include "host/cli/Window.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/MemoryGrowth.h"
#include "tests/support/Printers.h"
#include "tests/support/PrivateCups.h"
#include "tests/support/StandardInput.h"

namespace orvek::test {
namespace {

constexpr int blockSize = 1 << 16;
constexpr int blocks = 512;  // 32 MB
constexpr long mostMemory = 12L << 20;

// What the driver takes without a filter before it.
const QString driversFormat = QStringLiteral("application/vnd.cups-postscript");

// Bytes that no two blocks share and no program takes for a document of its own.
QByteArray blockAt(int number) {
  QByteArray block(blockSize, Qt::Uninitialized);
  auto state = quint32(number) * 2654435761U + 1;
  for (char &byte : block) {
    state = state * 1664525U + 1013904223U;
    byte = static_cast<char>(state >> 24U);
  }
  return block;
}

class WindowInput : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
    cups = std::make_unique<PrivateCups>();
    cups->addQueue(QStringLiteral("office"), driver.ppdFile());
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), S_IRUSR | S_IWUSR), 0);
  }

  // What "producer | orvek-print" has at the other end.
  void feed() {
    QFile end(pipe);
    ASSERT_TRUE(end.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    for (int number = 0; number < blocks; ++number) {
      ASSERT_EQ(end.write(blockAt(number)), blockSize);
    }
  }

  // Return anywhere in the window is its default button.
  static void pressReturnOnceThereIsAWindow() {
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer] {
      QWidget *window = QApplication::activeModalWidget();
      if (window == nullptr) return;
      window->activateWindow();
      QWidget *focus = QApplication::focusWidget();
      // Its printer may come after it.
      const auto *print = window->findChild<QPushButton *>(QStringLiteral("printButton"));
      if (focus == nullptr || !print->isEnabled()) return;
      delete timer;
      QTest::keyClick(focus, Qt::Key_Return);
    });
    timer->start(50);
  }

  QByteArray digestOfWhatArrived() const {
    QFile arrived(cups->printedBy(QStringLiteral("office")));
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (arrived.open(QIODevice::ReadOnly)) hash.addData(&arrived);
    return hash.result().toHex();
  }

  static QByteArray digestOfWhatWasFed() {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (int number = 0; number < blocks; ++number) hash.addData(blockAt(number));
    return hash.result().toHex();
  }

  QTemporaryDir folder;
  QString pipe = folder.filePath(QStringLiteral("pipe"));
  /// Passes the document on as it is.
  const CapturingFilter driver;
  std::unique_ptr<PrivateCups> cups;
};

TEST_F(WindowInput, ArrivesByteForByteAndIsNeverHeldInMemory) {
  CommandLine line;
  line.destination = QStringLiteral("office");
  line.plugins = {QStringLiteral(ORVEK_BUNDLE_DIR)};
  line.options = {{QStringLiteral("document-format"), driversFormat}};
  line.silent = true;
  line.files = {QStringLiteral("-")};
  std::thread producer([this] { feed(); });
  Status done;
  long growth = 0;
  {
    const StandardInput input(pipe);
    pressReturnOnceThereIsAWindow();
    QTimer::singleShot(0, qApp, [&growth] { growth = -peakMemory(); });
    done = runWindow(line);
    growth += peakMemory();
  }
  producer.join();
  ASSERT_TRUE(done) << done.failure().line().toStdString();
  EXPECT_EQ(cups->waitForJob(1), QStringLiteral("completed")) << cups->log().toStdString();
  EXPECT_EQ(digestOfWhatArrived(), digestOfWhatWasFed());
  if (memoryCanBeMeasured) {
    EXPECT_LT(growth, mostMemory);
  }
}

}  // namespace
}  // namespace orvek::test
