// SPDX-License-Identifier: Apache-2.0
// What a printer's texts say is shown, and never read as markup, which can have files opened.

#include <sys/inotify.h>
#include <unistd.h>

#include <QDir>
#include <QLabel>
#include <QRegularExpression>
#include <array>

#include "tests/host/dialog/DialogKit.h"
#include "tests/support/CapturingFilter.h"

using namespace orvek;
using namespace orvek::test;

namespace {

/// Whether files of a folder were opened while the object lives.
class OpenedFiles {
 public:
  explicit OpenedFiles(const QString &folder) : m_watch(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    EXPECT_GE(::inotify_add_watch(m_watch, folder.toLocal8Bit().constData(), IN_OPEN), 0);
  }
  ~OpenedFiles() { ::close(m_watch); }
  OpenedFiles(const OpenedFiles &) = delete;
  OpenedFiles &operator=(const OpenedFiles &) = delete;

  bool any() const {
    std::array<char, 4096> events{};
    return ::read(m_watch, events.data(), events.size()) > 0;
  }

 private:
  int m_watch;
};

class PlainText : public DialogTest {
 protected:
  void SetUp() override {
    QDir::setCurrent(pictures.path());
    writeContents(pictures.filePath(QStringLiteral("a.png")), "no picture");
    QString ppd = QString::fromUtf8(contentsOf(orvekPPD(QStringLiteral("6180"))));
    ppd.replace(QRegularExpression(QStringLiteral(R"((\*(?:OpenUI \*)?OVK\w+(?: \w+)?/))")),
                QStringLiteral("\\1<img src=a.png>"));
    path = folder.filePath(QStringLiteral("markup.ppd"));
    writeContents(path, ppd.toUtf8());
  }
  void TearDown() override { QDir::setCurrent(QDir::rootPath()); }

  void expectAllPlain() const {
    int shown = 0;
    for (const QWidget *widget : dialog->findChildren<QWidget *>()) {
      EXPECT_FALSE(Qt::mightBeRichText(widget->toolTip())) << widget->toolTip().toStdString();
      const auto *label = qobject_cast<const QLabel *>(widget);
      if (label == nullptr || !Qt::mightBeRichText(label->text())) continue;
      ++shown;
      EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
    }
    EXPECT_GT(shown, 0);
  }

  QTemporaryDir pictures;
  QString path;
};

TEST_F(PlainText, IsAllThatAPrintersWordsAre) {
  auto begun = openSession(path);
  ASSERT_TRUE(begun) << begun.failure().line().toStdString();
  session = begun.take();
  const OpenedFiles opened(pictures.path());
  showWindow();
  session->pick(QStringLiteral("OVKStapling"), QStringLiteral("Front"));
  session->pick(QStringLiteral("OVKFolding"), QStringLiteral("Saddle"));
  QCoreApplication::processEvents();
  ASSERT_TRUE(notices().sentences().join(u' ').contains(QStringLiteral("<img")));
  dialog->grab();
  expectAllPlain();
  const QTreeWidgetItem *line = summary().topLevelItem(0);
  EXPECT_TRUE(line->toolTip(0).contains(QStringLiteral("img")));
  EXPECT_FALSE(Qt::mightBeRichText(line->toolTip(0)));
  EXPECT_FALSE(opened.any());
}

}  // namespace
