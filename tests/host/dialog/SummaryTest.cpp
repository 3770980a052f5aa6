// SPDX-License-Identifier: Apache-2.0
// What the summary says of settings, and which of them it calls changed.

#include <QSet>

#include "host/session/JobChoices.h"
#include "tests/host/dialog/DialogKit.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class Summary : public DialogTest {
 protected:
  // The titles of the lines that are shown as changed, as a reader sees them: bold.
  QSet<QString> changed() const {
    QSet<QString> titles;
    for (int row = 0; row < summary().topLevelItemCount(); ++row) {
      const QTreeWidgetItem *line = summary().topLevelItem(row);
      if (line->font(0).bold()) titles << line->text(0);
    }
    return titles;
  }
};

TEST_F(Summary, CallsNothingChangedInAJobThatNobodyChanged) {
  open();
  EXPECT_TRUE(changed().isEmpty());
  EXPECT_FALSE(summaryValue(QStringLiteral("Folding")).isNull());
}

TEST_F(Summary, CallsThePanelsOwnSettingsOfATicketChanged) {
  SessionSetup setup;
  setup.ticket = {{QStringLiteral("OVKEnableBooklet"), QStringLiteral("True")},
                  {QStringLiteral("OVKGutter"), QStringLiteral("36")}};
  open(QStringLiteral("Orvek-6180"), setup);
  const QSet<QString> wanted{QStringLiteral("Print as booklet"), QStringLiteral("Gutter (pt)"),
                             QStringLiteral("Two-sided printing")};
  ASSERT_TRUE(QTest::qWaitFor([&] { return changed().size() > 1; }));
  EXPECT_EQ(changed(), wanted) << changed().values().join(QStringLiteral(", ")).toStdString();
  EXPECT_EQ(session->ticket().value(QStringLiteral("OVKGutter")).toString(), QStringLiteral("36"));
}

TEST_F(Summary, SaysOnWhichSidesABookletIsPrinted) {
  open();
  EXPECT_TRUE(summaryValue(QStringLiteral("Two-sided printing")).isNull());
  click("bookletChckBox");
  EXPECT_EQ(summaryValue(QStringLiteral("Two-sided printing")),
            QStringLiteral("Short-edge binding"));
  click("bookletChckBox");
  EXPECT_TRUE(summaryValue(QStringLiteral("Two-sided printing")).isNull());
}

TEST_F(Summary, SaysWhichPagesAndHowLargeWhereThatWasChosen) {
  open();
  EXPECT_TRUE(summaryValue(QStringLiteral("Adjust size")).isNull());
  pickJobChoice(*session, JobChoice::Scaling, QStringLiteral("fit"));
  pickJobChoice(*session, JobChoice::PageSet, QStringLiteral("odd"));
  EXPECT_EQ(summaryValue(QStringLiteral("Adjust size")), QStringLiteral("Fit to page"));
  EXPECT_EQ(summaryValue(QStringLiteral("Odd and even pages")), QStringLiteral("Odd pages only"));
}

TEST_F(Summary, ComparesAChoiceWithThePrintersOwnDefault) {
  SessionSetup setup;
  setup.queueOptions = {{QStringLiteral("OVKFolding"), QStringLiteral("Saddle")}};
  open(QStringLiteral("Orvek-6180"), setup);
  EXPECT_TRUE(changed().contains(QStringLiteral("Folding")));
  clickItem("foldingPopup", QStringLiteral("Off"));
  EXPECT_FALSE(changed().contains(QStringLiteral("Folding")));
}

// As a reader sees it: a line that wraps has the room for it.
TEST_F(Summary, ShowsAValueOfAnyLengthInFull) {
  SummaryView view;
  view.resize(view.sizeHint());
  view.QWidget::show();
  constexpr int longest = 60;
  constexpr int padding = 3;
  QString value;
  for (int length = 1; length < longest; ++length) {
    value += length % 5 == 0 ? QLatin1Char(' ') : QLatin1Char('i');
    view.show({{QStringLiteral("Title"), value, true}});
    QCoreApplication::processEvents();
    const QModelIndex index = view.model()->index(0, 1);
    const QRect cell = view.visualRect(index);
    const QFontMetrics metrics(view.topLevelItem(0)->font(1));
    const int needed = metrics
                           .boundingRect(0, 0, cell.width() - 2 * padding, QWIDGETSIZE_MAX,
                                         Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, value)
                           .height();
    EXPECT_GE(cell.height(), needed) << length;
  }
}

}  // namespace
