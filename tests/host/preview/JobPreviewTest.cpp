// SPDX-License-Identifier: Apache-2.0
// The preview as its user meets it: it shows the document, follows the job, and answers keys, wheel
// and arrows.

#include "host/preview/JobPreview.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>
#include <functional>
#include <optional>

#include "host/preview/SheetsView.h"
#include "host/session/ActionScope.h"

namespace orvek {
namespace {

constexpr int patience = 20000;
const QString sample = QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf");

/// Looks where sheets are to be seen when a widget is painted for the first time.
class FirstPaint : public QObject {
 public:
  FirstPaint(QWidget &widget, std::function<QRect()> look) : m_look(std::move(look)) {
    widget.installEventFilter(this);
  }

  const std::optional<QRect> &seen() const { return m_seen; }

 protected:
  bool eventFilter(QObject *, QEvent *event) override {
    if (event->type() == QEvent::Paint && !m_seen) m_seen = m_look();
    return false;
  }

 private:
  std::function<QRect()> m_look;
  std::optional<QRect> m_seen;
};

class JobPreviewTest : public testing::Test {
 protected:
  void SetUp() override {
    SessionSetup setup;
    setup.printer =
        PrinterDescription::open(QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"))
            .take();
    session = PrintSession::begin(setup).take();
    open(sample);
  }

  void open(const QString &document) {
    preview = std::make_unique<JobPreview>(*session, document);
    preview->resize(300, 320);
    preview->show();
    ASSERT_TRUE(QTest::qWaitFor([this] { return preview->isComplete(); }, patience));
  }

  void write(const char *key, const QVariant &value) {
    {
      const ActionScope action(*session);
      session->setTicketValue(QString::fromLatin1(key), value);
    }
    EXPECT_TRUE(QTest::qWaitFor([this] { return preview->isComplete(); }, patience));
  }

  void wheel(int notches, Qt::KeyboardModifiers modifiers = {}) {
    QWidget *ground = view()->viewport();
    const QPointF middle(ground->width() / 2.0, ground->height() / 2.0);
    QWheelEvent event(middle, ground->mapToGlobal(middle), {}, QPoint(0, 120 * notches),
                      Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(ground, &event);
  }

  SheetsView *view() { return preview->findChild<SheetsView *>(); }
  // Without the mark of the keyboard's focus, which has a colour of its own.
  QImage picture() {
    view()->clearFocus();
    return view()->viewport()->grab().toImage();
  }
  QString text(const char *label) {
    return preview->findChild<QLabel *>(QString::fromLatin1(label))->text();
  }
  void click(const char *button) {
    QTest::mouseClick(preview->findChild<QToolButton *>(QString::fromLatin1(button)),
                      Qt::LeftButton);
  }

  std::unique_ptr<PrintSession> session;
  std::unique_ptr<JobPreview> preview;
};

TEST_F(JobPreviewTest, ReadsAndLaysOutNothingBeforeItsFirstPaint) {
  JobPreview fresh(*session, sample);
  const auto *sheets = fresh.findChild<SheetsView *>();
  const FirstPaint paint(fresh, [&] {
    EXPECT_TRUE(fresh.sides().empty());
    EXPECT_FALSE(fresh.isComplete());
    return sheets->geometry();
  });
  fresh.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return fresh.isComplete(); }, patience));
  EXPECT_FALSE(fresh.sides().empty());
  // What came then has moved nothing.
  EXPECT_EQ(paint.seen(), std::optional(sheets->geometry()));
}

TEST_F(JobPreviewTest, IsThereForEveryJobAndShowsTheDocument) {
  EXPECT_EQ(preview->sides().size(), 8U);
  EXPECT_EQ(text("previewPlace"), "Sheet 1 of 8");
  EXPECT_EQ(text("previewCaption"), "8 sheets · A4");
  const QImage first = picture();
  QTest::keyClick(view(), Qt::Key_PageDown);
  ASSERT_TRUE(QTest::qWaitFor([this] { return preview->isComplete(); }, patience));
  EXPECT_NE(first, picture());
}

TEST_F(JobPreviewTest, StepsThroughSidesByKeysWheelAndArrows) {
  session->pick(QStringLiteral("Duplex"), QStringLiteral("DuplexNoTumble"));
  QCoreApplication::processEvents();
  EXPECT_EQ(text("previewPlace"), "Sheet 1 of 4, front");
  QTest::keyClick(view(), Qt::Key_PageDown);
  EXPECT_EQ(text("previewPlace"), "Sheet 1 of 4, back");
  wheel(-1);
  EXPECT_EQ(text("previewPlace"), "Sheet 2 of 4, front");
  click("previewForward");
  EXPECT_EQ(text("previewPlace"), "Sheet 2 of 4, back");
  click("previewBack");
  wheel(1);
  QTest::keyClick(view(), Qt::Key_PageUp);
  EXPECT_EQ(text("previewPlace"), "Sheet 1 of 4, front");
  EXPECT_FALSE(preview->findChild<QToolButton *>("previewBack")->isEnabled());
  QTest::keyClick(view(), Qt::Key_End);
  EXPECT_EQ(text("previewPlace"), "Sheet 4 of 4, back");
  EXPECT_FALSE(preview->findChild<QToolButton *>("previewForward")->isEnabled());
}

TEST_F(JobPreviewTest, StepsByArrowKeysAndZoomsByPlusAndMinus) {
  QTest::keyClick(view(), Qt::Key_Right);
  QTest::keyClick(view(), Qt::Key_Down);
  EXPECT_EQ(view()->current(), 2);
  QTest::keyClick(view(), Qt::Key_Left);
  QTest::keyClick(view(), Qt::Key_Up);
  EXPECT_EQ(view()->current(), 0);
  QTest::keyClick(view(), Qt::Key_Plus);
  EXPECT_GT(view()->zoom(), 1);
  // Enlarged, arrow keys move the sheet, and pages are turned by the page keys.
  QTest::keyClick(view(), Qt::Key_Down);
  EXPECT_EQ(view()->current(), 0);
  EXPECT_GT(view()->verticalScrollBar()->value(), 0);
  QTest::keyClick(view(), Qt::Key_PageDown);
  EXPECT_EQ(view()->current(), 1);
  QTest::keyClick(view(), Qt::Key_Home);
  QTest::keyClick(view(), Qt::Key_Minus);
  QTest::keyClick(view(), Qt::Key_Minus);
  EXPECT_TRUE(view()->showsSeveral());
  EXPECT_EQ(view()->current(), 0);
}

TEST_F(JobPreviewTest, ZoomsByWheelWithControl) {
  wheel(2, Qt::ControlModifier);
  EXPECT_GT(view()->zoom(), 1.5);
  EXPECT_EQ(view()->current(), 0);
  wheel(-2, Qt::ControlModifier);
  EXPECT_NEAR(view()->zoom(), 1, 1e-6);
  wheel(-1, Qt::ControlModifier);
  EXPECT_TRUE(view()->showsSeveral());
  wheel(6, Qt::ControlModifier);
  EXPECT_FALSE(view()->showsSeveral());
}

TEST_F(JobPreviewTest, ShowsSeveralSidesAndGoesToTheOnePicked) {
  click("previewSeveral");
  EXPECT_TRUE(view()->showsSeveral());
  QTest::keyClick(view(), Qt::Key_Right);
  EXPECT_EQ(view()->current(), 1);
  QTest::mouseDClick(view()->viewport(), Qt::LeftButton, {}, QPoint(40, 40));
  EXPECT_FALSE(view()->showsSeveral());
  EXPECT_EQ(view()->current(), 0);
}

TEST_F(JobPreviewTest, TellsScreenReadersWhatIsSeen) {
  session->pick(QStringLiteral("OVKFolding"), QStringLiteral("Saddle"));
  write("OVKEnableBooklet", QStringLiteral("True"));
  EXPECT_EQ(view()->accessibleDescription(),
            "Sheet 1, front: page 8 left, page 1 right, saddle fold, 2 staples");
  EXPECT_EQ(text("previewCaption"), "2 sheets · A4");
}

TEST_F(JobPreviewTest, SaysCopiesAndTheBinInWords) {
  JobSettings settings;
  settings.copies = 2;
  session->job().setSettings(settings);
  session->job().setPagesPerSheet(2);
  session->pick(QStringLiteral("OutputBin"), QStringLiteral("Finisher"));
  QCoreApplication::processEvents();
  EXPECT_EQ(text("previewCaption"), "2 × 4 sheets · A4 · Finisher tray");
}

TEST_F(JobPreviewTest, SaysHowManySheetsArePrintedOnBothSides) {
  session->pick(QStringLiteral("Duplex"), QStringLiteral("DuplexNoTumble"));
  EXPECT_EQ(text("previewCaption"), "4 sheets · Two-sided · A4");
}

TEST_F(JobPreviewTest, SaysTheCopiesOfATicket) {
  write("copies", 3);
  EXPECT_EQ(text("previewCaption"), "3 × 8 sheets · A4");
}

bool hasColor(const QImage &picture) {
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (QColor(picture.pixel(x, y)).saturation() > 40) return true;
    }
  }
  return false;
}

TEST_F(JobPreviewTest, ShowsPagesInGrayWhereTheyArePrintedInGray) {
  EXPECT_TRUE(hasColor(picture()));
  session->pick(QStringLiteral("ColorModel"), QStringLiteral("Gray"));
  ASSERT_TRUE(QTest::qWaitFor([this] { return preview->isComplete(); }, patience));
  EXPECT_FALSE(hasColor(picture()));
  session->pick(QStringLiteral("ColorModel"), QStringLiteral("CMYK"));
  ASSERT_TRUE(QTest::qWaitFor([this] { return preview->isComplete(); }, patience));
  EXPECT_TRUE(hasColor(picture()));
}

TEST_F(JobPreviewTest, ShowsAMirroredPageAsItsMirrorImage) {
  const QImage before = picture();
  write("mirror", QStringLiteral("true"));
  EXPECT_NE(before, picture());
  const auto &page = preview->sides().at(0).pages.at(0);
  EXPECT_TRUE(page.isMirrored);
  EXPECT_EQ(page.turn, 0);
}

TEST_F(JobPreviewTest, ChangesWithTheJobsKeys) {
  write("OVKEnableBooklet", QStringLiteral("True"));
  QImage before = picture();
  const QList<std::pair<const char *, QVariant>> changes{{"OVKRightToLeft", "True"},
                                                         {"OVKPrintPageBorders", "True"},
                                                         {"OVKGutter", "96"},
                                                         {"OVKTargetPaperSize", "8"}};
  for (const auto &[key, value] : changes) {
    write(key, value);
    const QImage after = picture();
    EXPECT_NE(before, after) << key;
    before = after;
  }
}

TEST_F(JobPreviewTest, ShowsAStapleAHoleAndAFold) {
  QImage before = picture();
  for (const auto &[option, choice] :
       {std::pair("OVKStapling", "Dual"), std::pair("OVKPunching", "2Hole"),
        std::pair("OVKFolding", "Fold")}) {
    session->pick(QString::fromLatin1(option), QString::fromLatin1(choice));
    QCoreApplication::processEvents();
    const QImage after = picture();
    EXPECT_NE(before, after) << option;
    before = after;
  }
}

TEST_F(JobPreviewTest, StandsInWithASampleForAnUnknownDocument) {
  open(QString());
  EXPECT_EQ(preview->sides().size(), 8U);
  EXPECT_EQ(text("previewCaption"), "The document's pages are not known: a sample · 8 sheets · A4");
  open(QStringLiteral("/no/such/document"));
  EXPECT_EQ(preview->sides().size(), 8U);
}

TEST_F(JobPreviewTest, SaysWhereNoPageIsPrinted) {
  JobSettings settings;
  settings.pageRanges = QStringLiteral("40-50");
  session->job().setSettings(settings);
  QCoreApplication::processEvents();
  EXPECT_TRUE(preview->sides().empty());
  EXPECT_EQ(text("previewCaption"), "No page of the document is printed.");
  QTest::keyClick(view(), Qt::Key_PageDown);
  wheel(-1);
  click("previewSeveral");
  EXPECT_EQ(view()->current(), 0);
}

TEST_F(JobPreviewTest, MayGoWhileItReads) {
  for (int i = 0; i < 5; ++i) {
    preview = std::make_unique<JobPreview>(*session, sample);
    preview->show();
    QTest::qWait(i * 15);
  }
  preview.reset();
}

}  // namespace
}  // namespace orvek
