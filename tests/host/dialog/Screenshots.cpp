// SPDX-License-Identifier: Apache-2.0
// Makes the pictures of docs/screenshots/: every page and state of the window, one file each. Not a
// test; run it after a change to the window and look at what it made.
//   orvek-screenshots FOLDER SUFFIX [dark]

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QPainter>
#include <QSlider>
#include <QStyleFactory>
#include <QTabWidget>
#include <QToolTip>
#include <QTreeView>
#include <QtTest>
#include <algorithm>
#include <cstdio>
#include <functional>

#include "host/dialog/PrintDialog.h"
#include "host/dialog/PrinterChooser.h"
#include "host/panels/PluginLoader.h"
#include "host/ppd/Wording.h"
#include "host/preview/JobPreview.h"
#include "host/session/QueueSetup.h"
#include "host/translations/Translations.h"
#include "tests/support/Palettes.h"
#include "tests/support/PrivateCups.h"

using namespace orvek;
using namespace orvek::test;

namespace {

const QString source = QStringLiteral(ORVEK_SOURCE_DIR);
constexpr int smallest = 0;     // of the qualities of a PNG: the most compressed
constexpr int settleTime = 80;  // milliseconds
constexpr int tipGap = 12;

std::unique_ptr<PrintSession> openSession(const QString &ppd) {
  SessionSetup setup;
  setup.printer = PrinterDescription::open(ppd).take();
  auto session = PrintSession::begin(setup).take();
  session->openPanels(
      {std::make_shared<LoadedPlugin>(loadPlugin(QStringLiteral(ORVEK_BUNDLE_DIR)).take())});
  return session;
}

/// A window in a state, and its picture.
class Shot {
 public:
  explicit Shot(const QString &printer = QStringLiteral("printers/Orvek-6180"),
                const QString &server = {}, const QString &output = {})
      : m_session(openSession(source + '/' + printer + ".ppd")) {
    DialogSetup setup;
    setup.files = {source + "/samples/Finishing-Sample.pdf"};
    setup.documentName = QStringLiteral("Finishing-Sample.pdf");
    setup.document = documentInfo(source + "/samples/Finishing-Sample.pdf");
    setup.presets = std::make_shared<PresetStore>(m_folder.path());
    setup.server.server = server;
    setup.outputFile = output;
    setup.askPrinter = [server](const QString &queue, const std::atomic<bool> &cancelled) {
      return ask(server, queue, cancelled);
    };
    setup.jobRequest = [this](PrintSession &now) { return request(now); };
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

  Shot &otherOptions() {
    return page(m_dialog->findChild<QTabWidget *>(QStringLiteral("pages"))->count() - 1);
  }

  Shot &print() {
    m_dialog->print();
    QTest::qWait(settleTime);
    return *this;
  }

  Shot &list() {
    auto *chooser = m_dialog->findChild<PrinterChooser *>();
    QSignalSpy listed(chooser, &PrinterChooser::listed);
    chooser->refresh();
    listed.wait();
    return *this;
  }

  Shot &openPrinterMenu() {
    m_dialog->findChild<PrinterChooser *>()->menu()->showPopup();
    QTest::qWait(settleTime);
    return *this;
  }

  Shot &choosePrinter(const QString &queue) {
    auto *menu = m_dialog->findChild<PrinterChooser *>()->menu();
    menu->setCurrentIndex(menu->findData(queue));
    Q_EMIT menu->activated(menu->currentIndex());
    QTest::qWait(settleTime);
    return *this;
  }

  /// Opens the pop-up of an option on the page of all others, and has a choice say its reason.
  Shot &openChoices(const QString &option, int spoken = -1) {
    auto *view = m_dialog->findChild<QTreeView *>(QStringLiteral("options"));
    const QModelIndexList found =
        view->model()->match(view->model()->index(0, 0), Qt::DisplayRole, option, 1,
                             Qt::MatchExactly | Qt::MatchRecursive);
    view->setCurrentIndex(found.value(0));
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Return);
    QTest::qWait(settleTime);
    auto *box = view->findChild<QComboBox *>();
    if (spoken < 0 || box == nullptr) return *this;
    const QModelIndex choice = box->model()->index(spoken, 0);
    const QPoint below(tipGap, box->view()->viewport()->height());
    QToolTip::showText(box->view()->viewport()->mapToGlobal(below),
                       choice.data(Qt::ToolTipRole).toString(), box->view());
    QTest::qWait(settleTime);
    return *this;
  }

  /// Picks the last choice of the pop-up that is open.
  Shot &pickLastChoice() {
    auto *box =
        m_dialog->findChild<QTreeView *>(QStringLiteral("options"))->findChild<QComboBox *>();
    QTest::keyClick(box->view(), Qt::Key_End);
    QTest::keyClick(box->view(), Qt::Key_Return);
    QTest::qWait(settleTime);
    return *this;
  }

  Shot &type(const char *field, const QString &text) {
    auto *widget = m_dialog->findChild<QWidget *>(QLatin1String(field));
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(widget, text);
    QTest::keyClick(widget, Qt::Key_Tab);
    QTest::qWait(settleTime);
    return *this;
  }

  Shot &mark(const QString &option, const QString &choice) {
    m_session->pick(option, choice);
    return *this;
  }

  /// What stands in front of the window is painted where it stands.
  void saveWithPopUps(const QString &file) {
    waitForPages();
    QPixmap picture = m_dialog->grab();
    QPainter painter(&picture);
    QWidgetList inFront = QApplication::topLevelWidgets();
    inFront.removeIf(
        [this](const QWidget *each) { return each == m_dialog.get() || !each->isVisible(); });
    // What speaks of a pop-up stands before it.
    std::stable_partition(inFront.begin(), inFront.end(),
                          [](const QWidget *each) { return each->windowType() != Qt::ToolTip; });
    for (QWidget *each : inFront) {
      painter.drawPixmap(m_dialog->mapFromGlobal(each->mapToGlobal(QPoint())), each->grab());
    }
    painter.end();
    if (!picture.save(file, "PNG", smallest)) std::fprintf(stderr, "%s\n", qPrintable(file));
  }

  void save(const QString &file) {
    waitForPages();
    if (!m_dialog->grab().save(file, "PNG", smallest)) {
      std::fprintf(stderr, "%s\n", qPrintable(file));
    }
  }

 private:
  void waitForPages() {
    const auto *preview = m_dialog->findChild<JobPreview *>();
    static_cast<void>(QTest::qWaitFor([&] { return preview->isComplete(); }));
    QTest::qWait(settleTime);
  }

  static Result<SessionSetup> ask(const QString &server, const QString &queue,
                                  const std::atomic<bool> &cancelled) {
    ServerAccess access;
    access.server = server;
    access.cancelled = &cancelled;
    SessionSetup setup;
    if (Status asked = setUpForQueue(access, queue, &setup); !asked) return asked.failure();
    return setup;
  }

  static QString optionOf(const QString &popUp) {
    return popUp == QLatin1String("foldingPopup") ? QStringLiteral("OVKFolding")
           : popUp == QLatin1String("punchPopup") ? QStringLiteral("OVKPunching")
                                                  : QStringLiteral("OVKStapling");
  }

  JobRequest request(PrintSession &now) const {
    JobRequest request;
    request.files = QStringList{source + "/samples/Finishing-Sample.pdf"};
    request.options = now.job().options();
    request.ppdFile = now.origin().printer->path();
    return request;
  }

  QTemporaryDir m_folder;
  std::unique_ptr<PrintSession> m_session;
  std::unique_ptr<PrintDialog> m_dialog;
};

// The option's name in the language of the pictures.
QString punchUnit() {
  const auto printer = PrinterDescription::open(source + "/printers/Orvek-6180.ppd").take();
  return optionText(*printer, QStringLiteral("OVKOptionPunch"));
}

// With a print server of its own, where there can be one.
void shootPrinters(const std::function<QString(const char *)> &file) {
  if (!PrivateCups::obstacle().isEmpty()) return;
  PrivateCups server;
  server.addQueue(QStringLiteral("second-floor"), source + "/printers/Orvek-6180.ppd",
                  {QStringLiteral("-L"), QStringLiteral("Second floor")});
  server.addQueue(QStringLiteral("workshop"), source + "/printers/Orvek-2120.ppd");
  const QString six = QStringLiteral("printers/Orvek-6180");
  Shot(six, server.socket()).list().openPrinterMenu().saveWithPopUps(file("printers"));
  Shot asked(six, server.socket());
  asked.list();
  server.pause();
  asked.choosePrinter(QStringLiteral("second-floor")).save(file("asking"));
  server.resume();
}

// A window whose jobs go into a file.
Shot into(const char *output) {
  return Shot(QStringLiteral("printers/Orvek-6180"), {}, QString::fromLatin1(output));
}

using FileOf = std::function<QString(const char *)>;

void shootPanels(const FileOf &file) {
  Shot().save(file("finishing"));
  Shot().pick("foldingPopup", QStringLiteral("Saddle")).booklet().save(file("booklet"));
  Shot().pick("staplingPopup", QStringLiteral("Dual")).save(file("stapled"));
  Shot()
      .pick("punchPopup", QStringLiteral("2Hole"))
      .pick("foldingPopup", QStringLiteral("Saddle"))
      .save(file("notice"));
  Shot(QStringLiteral("printers/Orvek-4150")).save(file("mid-range"));
  Shot(QStringLiteral("printers/Orvek-2120")).save(file("small"));
}

void shootOptions(const FileOf &file) {
  Shot().page(0).save(file("general"));
  Shot().otherOptions().save(file("options"));
  Shot()
      .mark(QStringLiteral("OVKPunching"), QStringLiteral("2Hole"))
      .otherOptions()
      .openChoices(punchUnit(), 0)
      .saveWithPopUps(file("reason"));
  Shot(QStringLiteral("tests/host/ppd/files/values"))
      .otherOptions()
      .openChoices(QStringLiteral("Watermark"))
      .pickLastChoice()
      .type("customText", QStringLiteral("Draft"))
      .type("customAngle", QStringLiteral("45"))
      .type("customSize", QStringLiteral("36"))
      .save(file("custom"));
}

void shootJobs(const FileOf &file) {
  into("/nowhere/out.ps").print().save(file("problem"));
  into("/dev/null").print().save(file("printing"));
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
  shootPanels(file);
  shootOptions(file);
  shootJobs(file);
  shootPrinters(file);
  return 0;
}
