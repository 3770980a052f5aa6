// SPDX-License-Identifier: Apache-2.0
// Makes the pictures of docs/screenshots/: every page and state of the window, one file each. Not a
// test; run it after a change to the window and look at what it made.
//   orvek-screenshots FOLDER SUFFIX [dark]

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QPalette>
#include <QSlider>
#include <QStyleFactory>
#include <QTabWidget>
#include <QtTest>
#include <cstdio>

#include "host/dialog/PrintDialog.h"
#include "host/session/PluginLoader.h"
#include "host/translations/Translations.h"

using namespace orvek;

namespace {

const QString source = QStringLiteral(ORVEK_SOURCE_DIR);
constexpr int smallest = 0;     // of the qualities of a PNG: the most compressed
constexpr int settleTime = 80;  // milliseconds

std::unique_ptr<PrintSession> openSession(const QString &printer) {
  SessionSetup setup;
  setup.printer = PrinterDescription::open(source + "/printers/" + printer + ".ppd").take();
  auto session = PrintSession::begin(std::move(setup)).take();
  session->addPlugin(
      std::make_shared<LoadedPlugin>(loadPlugin(QStringLiteral(ORVEK_BUNDLE_DIR)).take()));
  session->openPanels();
  return session;
}

/// A window in a state, and its picture.
class Shot {
 public:
  explicit Shot(const QString &printer = QStringLiteral("Orvek-6180"))
      : m_session(openSession(printer)) {
    DialogSetup setup;
    setup.documentName = QStringLiteral("Finishing-Sample.pdf");
    setup.document = documentInfo(source + "/samples/Finishing-Sample.pdf");
    setup.presets = std::make_shared<PresetStore>(m_folder.path());
    setup.jobRequest = [this](const PrintSession &now) { return request(now); };
    m_dialog = std::make_unique<PrintDialog>(*m_session, std::move(setup));
    m_dialog->show();
    QTest::qWait(settleTime);
  }

  Shot &pick(const char *popUp, const QString &choice) {
    auto *menu = m_dialog->findChild<QComboBox *>(QLatin1String(popUp));
    QTest::keyClick(menu, Qt::Key_Home);
    while (m_session->marks().marked(optionOf(popUp)) != choice) {
      const int before = menu->currentIndex();
      QTest::keyClick(menu, Qt::Key_Down);
      if (menu->currentIndex() == before) break;
    }
    QTest::qWait(settleTime);
    return *this;
  }

  Shot &booklet() {
    auto *box = m_dialog->findChild<QCheckBox *>(QStringLiteral("bookletChckBox"));
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->height() / 2, box->height() / 2));
    QTest::qWait(settleTime);
    return *this;
  }

  Shot &page(int index) {
    m_dialog->findChild<QTabWidget *>(QStringLiteral("pages"))->setCurrentIndex(index);
    QTest::qWait(settleTime);
    return *this;
  }

  Shot &print(const QString &into) {
    m_output = into;
    m_dialog->print();
    QTest::qWait(settleTime);
    return *this;
  }

  void save(const QString &file) {
    if (!m_dialog->grab().save(file, "PNG", smallest))
      std::fprintf(stderr, "%s\n", qPrintable(file));
  }

 private:
  static QString optionOf(const QString &popUp) {
    return popUp == QLatin1String("foldingPopup") ? QStringLiteral("OVKFolding")
           : popUp == QLatin1String("punchPopup") ? QStringLiteral("OVKPunching")
                                                  : QStringLiteral("OVKStapling");
  }

  JobRequest request(const PrintSession &now) const {
    JobRequest request;
    request.files = QStringList{source + "/samples/Finishing-Sample.pdf"};
    request.options = now.jobOptions();
    request.ppdFile = now.printer()->path();
    request.outputFile = m_output;
    return request;
  }

  QTemporaryDir m_folder;
  QString m_output;
  std::unique_ptr<PrintSession> m_session;
  std::unique_ptr<PrintDialog> m_dialog;
};

QPalette darkPalette() {
  QPalette palette(QColor(0x31, 0x36, 0x3b), QColor(0x2a, 0x2e, 0x32));
  palette.setColor(QPalette::Base, QColor(0x1b, 0x1e, 0x20));
  palette.setColor(QPalette::AlternateBase, QColor(0x23, 0x26, 0x29));
  palette.setColor(QPalette::Highlight, QColor(0x3d, 0xae, 0xe9));
  for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
    palette.setColor(role, QColor(0xfc, 0xfc, 0xfc));
    palette.setColor(QPalette::Disabled, role, QColor(0x88, 0x8e, 0x93));
  }
  return palette;
}

}  // namespace

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  installTranslations();
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  const QStringList words = QApplication::arguments();
  if (words.size() < 3) {
    std::fprintf(stderr, "usage: orvek-screenshots FOLDER SUFFIX [dark]\n");
    return 2;
  }
  if (words.contains(QStringLiteral("dark"))) QApplication::setPalette(darkPalette());
  const auto file = [&](const char *name) {
    return QDir(words[1]).filePath(QLatin1String(name) + words[2] + ".png");
  };
  Shot().save(file("finishing"));
  Shot().pick("foldingPopup", QStringLiteral("Saddle")).booklet().save(file("booklet"));
  Shot().pick("staplingPopup", QStringLiteral("Dual")).save(file("stapled"));
  Shot().page(0).save(file("general"));
  Shot().page(2).save(file("options"));
  Shot()
      .pick("punchPopup", QStringLiteral("2Hole"))
      .pick("foldingPopup", QStringLiteral("Saddle"))
      .save(file("notice"));
  Shot().print(QStringLiteral("/nowhere/out.ps")).save(file("problem"));
  Shot(QStringLiteral("Orvek-4150")).save(file("mid-range"));
  Shot(QStringLiteral("Orvek-2120")).save(file("small"));
  return 0;
}
