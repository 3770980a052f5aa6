// SPDX-License-Identifier: Apache-2.0
// A window over a document that comes once: seen before it is printed, and printed all the same.

#include <QLabel>

#include "host/dialog/ElidedLabel.h"
#include "host/preview/JobPreview.h"
#include "tests/driver/DriverKit.h"
#include "tests/driver/MarkedDocument.h"
#include "tests/host/dialog/DialogKit.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/StandardInput.h"

namespace orvek::test {
namespace {

class WindowOverInput : public DialogTest {
 protected:
  void SetUp() override {
    files = {QStringLiteral("-")};
    prepare = [](DialogSetup &setup) { setup.document = {{}, QStringLiteral("-"), 0}; };
  }

  std::size_t sides() const { return dialog->findChild<JobPreview *>()->sides().size(); }

  bool waitForPreview() const {
    return QTest::qWaitFor(
        [this] {
          const auto *preview = dialog->findChild<JobPreview *>();
          return dialog->document().path != QLatin1String("-") && preview->isComplete();
        },
        jobTimeout);
  }

  QString caption() const { return find<QLabel>("previewCaption")->text(); }
};

TEST_F(WindowOverInput, ShowsItsPagesAndPrintsThem) {
  if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
  const QByteArray document = QByteArray::fromStdString(markedDocument(3));
  const StandardInput input(document);
  open();
  EXPECT_TRUE(QTest::qWaitFor([&] { return caption() == "Reading the document…"; }));
  dialog->lookAround();
  ASSERT_TRUE(waitForPreview());
  EXPECT_EQ(sides(), 3U);
  EXPECT_EQ(caption(), "3 sheets · A4");
  QSignalSpy finished(dialog.get(), &QDialog::finished);
  click("printButton");
  ASSERT_TRUE(finished.count() > 0 || finished.wait(jobTimeout));
  EXPECT_EQ(printed().count("%%Page: "), 3);
}

TEST_F(WindowOverInput, SaysThatAnEmptyOneCanNotBePrinted) {
  const StandardInput input(QByteArray("\0", 0));
  open();
  dialog->lookAround();
  ASSERT_TRUE(waitForPreview());
  EXPECT_EQ(caption(), "The document's pages are not known: a sample · 8 sheets · A4");
  const auto *words = find<ElidedLabel>("jobWords");
  ASSERT_TRUE(QTest::qWaitFor([&] { return words->isVisible(); }, jobTimeout));
  EXPECT_EQ(words->wholeText(), "standard input is empty");
  EXPECT_FALSE(find<QPushButton>("printButton")->isEnabled());
}

}  // namespace
}  // namespace orvek::test
