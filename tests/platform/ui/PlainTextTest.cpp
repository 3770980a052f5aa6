// SPDX-License-Identifier: Apache-2.0
// Texts that look like markup are shown as they are.

#include "platform/ui/PlainText.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QTextDocument>
#include <QTimer>

namespace orvek::test {
namespace {

const QStringList markup{"<img src=a.png>", "A <b>B</b>", "<?xml version='1'?><html>",
                         "a &lt; b <i>", " \n<p>x"};

TEST(PlainLabel, TakesNoTextForMarkup) {
  for (const QString &text : markup) {
    const PlainLabel label(text);
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_EQ(label.text(), text);
  }
  EXPECT_STREQ(PlainLabel().metaObject()->className(), "QLabel");
}

TEST(PlainMessageBox, TakesNoTextForMarkup) {
  const PlainMessageBox box(QMessageBox::Warning, "title", markup.first(), QMessageBox::Ok,
                            nullptr);
  EXPECT_EQ(box.textFormat(), Qt::PlainText);
  EXPECT_EQ(box.text(), markup.first());
}

TEST(PlainToolTip, IsTakenForMarkupByNothing) {
  for (const QString &text : markup) {
    ASSERT_TRUE(Qt::mightBeRichText(text)) << text.toStdString();
    EXPECT_FALSE(Qt::mightBeRichText(plainToolTip(text))) << text.toStdString();
    EXPECT_EQ(plainToolTip(text).remove(QChar(0x200b)), text);
  }
}

TEST(PlainToolTip, OfAnOrdinaryTextIsThatText) {
  for (const char *text : {"", "Staple", "1 < 2", "Fold & staple"}) {
    EXPECT_EQ(plainToolTip(QString::fromUtf8(text)), QString::fromUtf8(text));
  }
}

bool answered(QMessageBox::StandardButton button) {
  QTimer::singleShot(0, [button] {
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    box->button(button)->click();
  });
  return isConfirmed(nullptr, QStringLiteral("title"), QStringLiteral("<b>?</b>"));
}

TEST(IsConfirmed, IsTrueForYesAlone) {
  EXPECT_TRUE(answered(QMessageBox::Yes));
  EXPECT_FALSE(answered(QMessageBox::No));
}

}  // namespace
}  // namespace orvek::test
