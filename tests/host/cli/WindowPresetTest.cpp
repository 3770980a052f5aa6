// SPDX-License-Identifier: Apache-2.0
// What a window begins with: what its printer printed with last, a preset, what the command line
// says.

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <functional>

#include "host/cli/Window.h"
#include "host/dialog/NoticeBar.h"
#include "host/dialog/PrintDialog.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/Printers.h"
#include "tests/support/PrivateCups.h"

namespace orvek::test {
namespace {

constexpr int often = 10;
constexpr int patience = 20000;
const QString folding = QStringLiteral("OVKFolding");

PrintDialog *window() {
  return qobject_cast<PrintDialog *>(QApplication::activeModalWidget());
}

QPushButton *button(const char *name) {
  return window()->findChild<QPushButton *>(QLatin1String(name));
}

class WindowBeginning : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
    cups = std::make_unique<PrivateCups>();
    cups->addQueue(QStringLiteral("office"), orvekPPD(QStringLiteral("6180")));
    data = QDir(cups->home()).filePath(QStringLiteral("data"));
    qputenv("XDG_DATA_HOME", data.toUtf8());
  }

  void TearDown() override { qunsetenv("XDG_DATA_HOME"); }

  static CommandLine usualLine() {
    CommandLine line;
    line.plugins = QStringList{QStringLiteral(ORVEK_BUNDLE_DIR)};
    line.files = QStringList{QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.ps")};
    line.destination = QStringLiteral("office");
    line.silent = true;
    return line;
  }

  // Runs a window; once its printer is there, looks at it, and presses that button.
  static void run(const CommandLine &line, const char *last,
                  const std::function<void(PrintDialog &)> &look) {
    QTimer timer;
    QElapsedTimer clock;
    clock.start();
    bool hasLooked = false;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
      if (window() == nullptr) return;
      const bool isThere = button("printButton")->isEnabled();
      if (!isThere && clock.elapsed() < patience) return;
      timer.stop();
      hasLooked = isThere;
      if (isThere) look(*window());
      QTest::mouseClick(button(isThere ? last : "cancelButton"), Qt::LeftButton);
    });
    timer.start(often);
    const Status done = runWindow(line);
    EXPECT_TRUE(done) << done.failure().line().toStdString();
    EXPECT_TRUE(hasLooked);
  }

  static QString shownPreset(const PrintDialog &dialog) {
    return dialog.findChild<QComboBox *>(QStringLiteral("presetMenu"))->currentText();
  }

  // Prints folded, three copies of the second page.
  static void printFolded() {
    CommandLine line = usualLine();
    line.options = {{folding, QStringLiteral("Saddle")}};
    line.copies = 3;
    line.pageRanges = QStringLiteral("2");
    run(line, "printButton", [](PrintDialog &) {});
  }

  std::unique_ptr<PrivateCups> cups;
  QString data;
};

TEST_F(WindowBeginning, IsWhatWasPrintedWithLast) {
  printFolded();
  run(usualLine(), "cancelButton", [](PrintDialog &dialog) {
    EXPECT_EQ(dialog.session().marks().marked(folding), QStringLiteral("Saddle"));
    EXPECT_EQ(dialog.session().job().settings(), JobSettings());
    EXPECT_EQ(shownPreset(dialog), QStringLiteral("Last used"));
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(dialog.session().marks().marked(folding), QStringLiteral("None"));
    EXPECT_EQ(shownPreset(dialog), QStringLiteral("None"));
  });
}

TEST_F(WindowBeginning, IsWhatTheCommandLineSaysBeforeThat) {
  printFolded();
  CommandLine line = usualLine();
  line.options = {{folding, QStringLiteral("None")}};
  run(line, "cancelButton", [](PrintDialog &dialog) {
    EXPECT_EQ(dialog.session().marks().marked(folding), QStringLiteral("None"));
  });
  line.options = {{QStringLiteral("MediaType"), QStringLiteral("Heavy")}};
  run(line, "cancelButton", [](PrintDialog &dialog) {
    EXPECT_EQ(dialog.session().marks().marked(folding), QStringLiteral("Saddle"));
    EXPECT_EQ(shownPreset(dialog), QStringLiteral("Last used (changed)"));
  });
  line.options.clear();
  line.marks = {{QStringLiteral("OVKStapling"), QStringLiteral("Front")}};
  run(line, "cancelButton", [](PrintDialog &dialog) {
    EXPECT_EQ(dialog.session().marks().marked(folding), QStringLiteral("None"));
    EXPECT_EQ(dialog.session().marks().marked(QStringLiteral("OVKStapling")),
              QStringLiteral("Front"));
    EXPECT_EQ(shownPreset(dialog), QStringLiteral("None"));
  });
}

TEST_F(WindowBeginning, IsThePresetThatTheCommandLineNames) {
  printFolded();
  Preset stapled;
  stapled.name = QStringLiteral("Stapled");
  stapled.options.insert(QStringLiteral("OVKStapling"), QStringLiteral("Front"));
  ASSERT_TRUE(PresetStore().save(stapled));
  CommandLine line = usualLine();
  line.preset = stapled.name;
  run(line, "cancelButton", [](PrintDialog &dialog) {
    EXPECT_EQ(shownPreset(dialog), QStringLiteral("Stapled"));
    EXPECT_EQ(dialog.session().marks().marked(folding), QStringLiteral("None"));
  });
  line.options = {{folding, QStringLiteral("Saddle")}};
  run(line, "cancelButton", [](PrintDialog &dialog) {
    EXPECT_EQ(shownPreset(dialog), QStringLiteral("Stapled (changed)"));
  });
}

TEST_F(WindowBeginning, GivesTheServerWhatItTakesOfAJob) {
  CommandLine line = usualLine();
  line.priority = 80;
  run(line, "printButton", [](PrintDialog &dialog) {
    dialog.findChild<QTabWidget *>(QStringLiteral("pages"))->setCurrentIndex(0);
    QCoreApplication::processEvents();
    auto *priority = dialog.findChild<QComboBox *>(QStringLiteral("priority"));
    ASSERT_NE(priority, nullptr);
    EXPECT_EQ(priority->currentText(), QStringLiteral("High"));
    priority->setFocus();
    QTest::keyClick(priority, Qt::Key_Down);
    auto *start = dialog.findChild<QComboBox *>(QStringLiteral("startPrinting"));
    start->setFocus();
    QTest::keyClicks(start, QStringLiteral("When"));
    EXPECT_EQ(start->currentText(), QStringLiteral("When released"));
  });
  const QMap<QString, QString> sent = cups->jobAttributes(1);
  EXPECT_EQ(sent.value(QStringLiteral("job-priority")), QStringLiteral("100"));
  EXPECT_EQ(sent.value(QStringLiteral("job-hold-until")), QStringLiteral("indefinite"));
  // Neither is the next job's.
  run(usualLine(), "cancelButton", [](PrintDialog &dialog) {
    const QMap<QString, QString> said = dialog.session().job().options();
    EXPECT_FALSE(said.contains(QStringLiteral("job-priority")));
    EXPECT_FALSE(said.contains(QStringLiteral("job-hold-until")));
  });
}

TEST_F(WindowBeginning, IsPlainForThoseWhoWantNothingRemembered) {
  ASSERT_TRUE(PresetStore().setRemembers(false));
  printFolded();
  EXPECT_FALSE(PresetStore().lastUsed(QStringLiteral("office")).value().has_value());
  run(usualLine(), "cancelButton", [](PrintDialog &dialog) {
    EXPECT_EQ(dialog.session().marks().marked(folding), QStringLiteral("None"));
  });
}

TEST_F(WindowBeginning, IsPlainWhereWhatWasRememberedIsDamaged) {
  QDir().mkpath(data + QStringLiteral("/orvek-print/last-used"));
  writeContents(data + QStringLiteral("/orvek-print/last-used/office.json"), "{");
  run(usualLine(), "cancelButton", [](PrintDialog &dialog) {
    EXPECT_EQ(shownPreset(dialog), QStringLiteral("None"));
    const NoticeBar &notices = *dialog.findChild<NoticeBar *>();
    ASSERT_EQ(notices.sentences().size(), 1);
    EXPECT_TRUE(notices.sentences().first().contains(QStringLiteral("office.json")));
  });
}

}  // namespace
}  // namespace orvek::test
