// SPDX-License-Identifier: Apache-2.0
// Draws every page of the window in one language, one below the other, for each theme and size of
// letters beside each other, and says which texts are cut off. Called by tests/looks/run.sh.
//   orvek-contact-sheet LANGUAGE FILE

#include <QApplication>
#include <QCheckBox>
#include <QLocale>
#include <QPainter>
#include <QStyle>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>
#include <array>
#include <cstdio>

#include "host/dialog/PrintDialog.h"
#include "host/panels/PluginLoader.h"
#include "host/preview/JobPreview.h"
#include "host/translations/Translations.h"
#include "tests/looks/Clipped.h"
#include "tests/support/Palettes.h"

using namespace orvek;
using namespace orvek::test;

namespace {

const QString source = QStringLiteral(ORVEK_SOURCE_DIR);
constexpr int settleTime = 60;  // milliseconds
constexpr int gap = 12;         // pixels between pictures
constexpr int sides = 1500;     // milliseconds that a preview may take; one without room never ends
constexpr int percent = 100;

/// How the window is shown. Plain data.
struct Look {
  const char *name;
  bool isDark;
  /// Of the letters, in percent.
  int scale;
};

constexpr std::array looks{Look{"light 100 %", false, 100}, Look{"dark 100 %", true, 100},
                           Look{"light 150 %", false, 150}, Look{"dark 150 %", true, 150}};

std::unique_ptr<PrintSession> openSession() {
  SessionSetup setup;
  setup.printer = PrinterDescription::open(source + "/printers/Orvek-6180.ppd").take();
  auto session = PrintSession::begin(setup).take();
  session->openPanels(
      {std::make_shared<LoadedPlugin>(loadPlugin(QStringLiteral(ORVEK_BUNDLE_DIR)).take())});
  return session;
}

DialogSetup setUp(const QTemporaryDir &folder) {
  DialogSetup setup;
  setup.files = QStringList{source + "/samples/Finishing-Sample.pdf"};
  setup.documentName = QStringLiteral("Finishing-Sample.pdf");
  setup.document = documentInfo(source + "/samples/Finishing-Sample.pdf");
  setup.presets = std::make_shared<PresetStore>(folder.path());
  return setup;
}

/// The pages of one window, and what is wrong with them.
class Pages {
 public:
  explicit Pages(const Look &look) : m_look(look), m_session(openSession()) {
    m_dialog = std::make_unique<PrintDialog>(*m_session, setUp(m_folder));
    m_dialog->show();
    QTest::qWait(settleTime);
    auto *pages = m_dialog->findChild<QTabWidget *>(QStringLiteral("pages"));
    for (int page = 0; page < pages->count(); ++page) {
      pages->setCurrentIndex(page);
      take();
    }
    showBookletAndNotice(*pages);
  }

  const QList<QPixmap> &pictures() const { return m_pictures; }
  const QStringList &faults() const { return m_faults; }

 private:
  // The panel with all that it has, and the line that says what gave way.
  void showBookletAndNotice(QTabWidget &pages) {
    auto *box = m_dialog->findChild<QCheckBox *>(QStringLiteral("bookletChckBox"));
    for (int page = 0; page < pages.count() && !box->isVisible(); ++page) {
      pages.setCurrentIndex(page);
    }
    QTest::keyClick(box, Qt::Key_Space);
    m_session->pick(QStringLiteral("OVKPunching"), QStringLiteral("2Hole"));
    m_session->pick(QStringLiteral("OVKFolding"), QStringLiteral("Saddle"));
    take();
  }

  void take() {
    QTest::qWait(settleTime);
    const auto *preview = m_dialog->findChild<JobPreview *>();
    static_cast<void>(QTest::qWaitFor([&] { return preview->isComplete(); }, sides));
    QTest::qWait(settleTime);
    m_pictures << m_dialog->grab();
    for (const QString &fault : clippedTexts(*m_dialog)) {
      const QString line = QLatin1String(m_look.name) + QStringLiteral(": ") + fault;
      if (!m_faults.contains(line)) m_faults << line;
    }
  }

  Look m_look;
  QTemporaryDir m_folder;
  std::unique_ptr<PrintSession> m_session;
  std::unique_ptr<PrintDialog> m_dialog;
  QList<QPixmap> m_pictures;
  QStringList m_faults;
};

QPixmap sheetOf(const QList<QList<QPixmap>> &columns) {
  int width = gap;
  int height = 0;
  for (const QList<QPixmap> &column : columns) {
    int widest = 0;
    int below = gap;
    for (const QPixmap &picture : column) {
      widest = std::max(widest, picture.width());
      below += picture.height() + gap;
    }
    width += widest + gap;
    height = std::max(height, below);
  }
  QPixmap sheet(width, height);
  sheet.fill(Qt::gray);
  QPainter painter(&sheet);
  int left = gap;
  for (const QList<QPixmap> &column : columns) {
    int top = gap;
    int widest = 0;
    for (const QPixmap &picture : column) {
      painter.drawPixmap(left, top, picture);
      top += picture.height() + gap;
      widest = std::max(widest, picture.width());
    }
    left += widest + gap;
  }
  return sheet;
}

void dress(const Look &look, const QFont &font) {
  QFont scaled = font;
  scaled.setPointSizeF(font.pointSizeF() * look.scale / percent);
  QApplication::setFont(scaled);
  QApplication::setPalette(look.isDark ? darkPalette() : QApplication::style()->standardPalette());
}

}  // namespace

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  const QStringList words = QApplication::arguments();
  if (words.size() != 3) {
    std::fprintf(stderr, "usage: orvek-contact-sheet LANGUAGE FILE\n");
    return 2;
  }
  QLocale::setDefault(QLocale(words[1]));
  installTranslations();
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  const QFont font = QApplication::font();
  QList<QList<QPixmap>> columns;
  QStringList faults;
  for (const Look &look : looks) {
    dress(look, font);
    const Pages pages(look);
    columns << pages.pictures();
    faults << pages.faults();
  }
  for (const QString &fault : faults) {
    std::printf("%s, %s\n", qPrintable(words[1]), qPrintable(fault));
  }
  if (!sheetOf(columns).save(words[2], "PNG")) {
    std::fprintf(stderr, "%s: can't be written\n", qPrintable(words[2]));
    return 2;
  }
  return faults.isEmpty() ? 0 : 1;
}
