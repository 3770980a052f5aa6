// SPDX-License-Identifier: Apache-2.0
// The table of the preview.  preview-bench [ROUNDS]

#include <QApplication>
#include <QEventLoop>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>

#include "bench/dialog/FirstPaint.h"
#include "bench/preview/Heartbeat.h"
#include "host/cli/CommandLine.h"
#include "host/cli/SessionStart.h"
#include "host/cli/Window.h"
#include "host/dialog/PrintDialog.h"
#include "host/preview/JobPreview.h"
#include "host/preview/PagePictures.h"
#include "host/preview/SheetsView.h"

namespace orvek::bench {
namespace {

constexpr int usualRounds = 9;
constexpr int samplePages = 8;
constexpr int longDocument = 1000;
constexpr int hugeDocument = 100000;
constexpr int scrollSteps = 300;
constexpr int stepMilliseconds = 15;
constexpr int patienceMilliseconds = 60000;
constexpr double firstPageGoal = 150;
constexpr double blockGoal = 16;
const QString sample = QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf");

/// The window as a user opens it on a document.
struct Opened {
  CommandLine line;
  std::unique_ptr<PrintSession> session;
  std::unique_ptr<PrintDialog> dialog;
};

std::unique_ptr<Opened> open(const QString &document) {
  auto opened = std::make_unique<Opened>();
  const auto line = parseCommandLine({"--ppd", ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd",
                                      "--output", "/dev/null", document.toUtf8()});
  if (!line) std::abort();
  opened->line = line.value();
  auto session = startSession(opened->line);
  if (!session) std::abort();
  opened->session = session.take();
  opened->dialog = std::make_unique<PrintDialog>(*opened->session,
                                                 dialogSetupFor(opened->line, *opened->session));
  return opened;
}

void waitFor(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
}

void waitUntilComplete(const JobPreview &preview) {
  QElapsedTimer clock;
  clock.start();
  while (!preview.isComplete() && clock.elapsed() < patienceMilliseconds) waitFor(stepMilliseconds);
}

/// Starts its clock with the window's first paint, and stops it with the first after a page's
/// picture came.
class FirstPage final : public QObject {
 public:
  explicit FirstPage(PrintDialog *dialog) : m_dialog(dialog) {
    m_view = dialog->findChild<SheetsView *>()->viewport();
    dialog->installEventFilter(this);
    m_view->installEventFilter(this);
    const auto *pictures = dialog->findChild<PagePictures *>();
    connect(pictures, &PagePictures::arrived, this, [this, pictures](int page) {
      m_hasArrived = m_hasArrived || !pictures->picture(page).isNull();
    });
  }

  double wait() {
    QTimer::singleShot(patienceMilliseconds, &m_loop, &QEventLoop::quit);
    m_loop.exec();
    return m_milliseconds;
  }

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override {
    if (event->type() != QEvent::Paint) return false;
    if (watched == m_dialog && !m_clock.isValid()) m_clock.start();
    if (watched == m_view && m_hasArrived && m_clock.isValid() && m_milliseconds == 0) {
      m_milliseconds = static_cast<double>(m_clock.nsecsElapsed()) / 1e6;
      m_loop.quit();
    }
    return false;
  }

 private:
  PrintDialog *m_dialog;
  QObject *m_view;
  QEventLoop m_loop;
  QElapsedTimer m_clock;
  bool m_hasArrived = false;
  double m_milliseconds = 0;
};

double firstPage() {
  const auto opened = open(sample);
  FirstPage watch(opened->dialog.get());
  opened->dialog->show();
  QTimer::singleShot(0, opened->dialog.get(), &PrintDialog::lookAround);
  return watch.wait();
}

void line(const char *what, double milliseconds, double goal) {
  std::printf("%-58s %8.2f ms  <= %.0f %s\n", what, milliseconds, goal,
              milliseconds <= goal ? "met" : "MISSED");
  std::fflush(stdout);
}

/// Nothing is measured on a document that wasn't read.
void expectSides(const JobPreview &preview, int sides) {
  if (static_cast<int>(preview.sides().size()) == sides) return;
  std::fprintf(stderr, "%d sides instead of %d\n", static_cast<int>(preview.sides().size()), sides);
  std::exit(1);
}

void lines(const QString &what, const Heartbeat &heartbeat) {
  line(qPrintable(what + QStringLiteral(", longest block")), heartbeat.longest(), blockGoal);
  line(qPrintable(what + QStringLiteral(", of it work")), heartbeat.longestWork(), blockGoal);
}

QString repeated(const QTemporaryDir &folder, int pages) {
  const QString path = folder.filePath(QString::number(pages) + QStringLiteral(".pdf"));
  QStringList arguments{QStringLiteral("--empty"), QStringLiteral("--pages")};
  QString ranges = QStringLiteral("1-8");
  for (int made = samplePages; made < pages; made += samplePages) ranges += QStringLiteral(",1-8");
  arguments << sample << ranges << QStringLiteral("--") << path;
  if (QProcess::execute(QStringLiteral("qpdf"), arguments) != 0) std::abort();
  return path;
}

void scroll(Heartbeat &heartbeat, const QString &document, bool several) {
  const auto opened = open(document);
  auto *preview = opened->dialog->findChild<JobPreview *>();
  auto *view = opened->dialog->findChild<SheetsView *>();
  opened->dialog->show();
  waitUntilComplete(*preview);
  expectSides(*preview, longDocument);
  view->setShowsSeveral(several);
  heartbeat.restart();
  for (int step = 0; step < scrollSteps; ++step) {
    const int sides = step % 50 < 45 ? 1 : several ? 37 : 17;
    QTimer::singleShot(0, view, [view, sides] { view->setCurrent(view->current() + sides); });
    waitFor(stepMilliseconds);
  }
  lines(several ? QStringLiteral("scrolling 1,000 pages, several")
                : QStringLiteral("scrolling 1,000 pages, one"),
        heartbeat);
}

void read(Heartbeat &heartbeat, const QString &document, int pages, const QString &what) {
  const auto opened = open(document);
  auto *preview = opened->dialog->findChild<JobPreview *>();
  opened->dialog->show();
  heartbeat.restart();
  waitUntilComplete(*preview);
  expectSides(*preview, pages);
  lines(what, heartbeat);
  heartbeat.restart();
  QTimer::singleShot(0, opened->session.get(),
                     [&opened] { opened->session->job().setPagesPerSheet(2); });
  waitFor(stepMilliseconds);
  waitUntilComplete(*preview);
  expectSides(*preview, pages / 2);
  lines(what + QStringLiteral(", two on a sheet"), heartbeat);
}

}  // namespace
}  // namespace orvek::bench

int main(int argc, char **argv) {
  using namespace orvek::bench;
  Heartbeat heartbeat(argc, argv);
  const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : usualRounds;
  warmUp();
  std::vector<double> times;
  for (int round = 0; round < rounds; ++round) times.push_back(firstPage());
  std::sort(times.begin(), times.end());
  line("first real page after the window's first paint, median", times[times.size() / 2],
       firstPageGoal);
  const QTemporaryDir folder;
  const QString document = repeated(folder, longDocument);
  scroll(heartbeat, document, false);
  scroll(heartbeat, document, true);
  read(heartbeat, document, longDocument, QStringLiteral("opening 1,000 pages"));
  read(heartbeat, repeated(folder, hugeDocument), hugeDocument,
       QStringLiteral("opening 100,000 pages"));
  return 0;
}
