// SPDX-License-Identifier: Apache-2.0
// The file comes first, then the queues used lately, then the others by name.

#include "host/dialog/PrinterChooser.h"

#include <QHBoxLayout>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "host/dialog/ElidedLabel.h"
#include "host/dialog/PrinterMenu.h"
#include "host/translations/FailureText.h"
#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

// With the time that an answer takes no more than five seconds.
constexpr int pollMilliseconds = 4000;
const QString separator = QStringLiteral(" · ");

// "Stopped · Toner is low · Second floor": what is wrong is not to be what has no room.
QString detailOf(const Queue &queue) {
  QStringList parts{stateInWords(queue)};
  parts << queue.reasons;
  if (!queue.stateMessage.isEmpty() && !parts.contains(queue.stateMessage)) {
    parts << queue.stateMessage;
  }
  if (!queue.location.isEmpty()) parts << queue.location;
  return parts.join(separator);
}

QString titleOf(const Queue &queue) {
  const QString title = queue.destination();
  return queue.isDefault ? PrinterChooser::tr("%1 (default)").arg(title) : title;
}

// An administrator's words may hold a line feed where a space is meant.
PrinterEntry entryOf(const Queue &queue, bool isRecent) {
  const QString info = queue.info.simplified();
  return {queue.destination(),
          titleOf(queue),
          info == queue.name ? QString() : info,
          detailOf(queue).simplified(),
          queue.location.simplified(),
          isRecent};
}

}  // namespace

PrinterChooser::PrinterChooser(ServerAccess access, QWidget *parent)
    : QWidget(parent),
      m_access(std::move(access)),
      m_menu(new PrinterMenu(m_printers, this)),
      m_open(new QToolButton(this)),
      m_detail(new ElidedLabel(Qt::ElideRight, this)) {
  m_menu->setObjectName(QStringLiteral("printerMenu"));
  m_menu->setAccessibleName(tr("Printer"));
  m_detail->setObjectName(QStringLiteral("printerDetail"));
  buildOpen();
  auto *row = new QHBoxLayout;
  row->addWidget(m_menu, 1);
  row->addWidget(m_open);
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  column->addLayout(row);
  column->addWidget(m_detail);
  setFocusProxy(m_menu);
  connectParts();
  fill({});
}

void PrinterChooser::connectParts() {
  connect(m_menu, &PrinterMenu::taken, this, &PrinterChooser::pick);
  connect(m_menu, &PrinterMenu::againAsked, this, &PrinterChooser::refresh);
  m_poll.setSingleShot(true);
  m_poll.setInterval(pollMilliseconds);
  connect(&m_poll, &QTimer::timeout, this, &PrinterChooser::poll);
}

// A way to a printer is none itself: keys go through the list, and must not end up in a question.
void PrinterChooser::buildOpen() {
  m_open->setObjectName(QStringLiteral("openDescription"));
  m_open->setText(QStringLiteral("…"));
  m_open->setFixedHeight(m_menu->sizeHint().height());
  m_open->setAccessibleName(tr("Open Printer Description…"));
  m_open->setToolTip(tr("Open Printer Description…"));
  m_open->setFocusPolicy(Qt::StrongFocus);
  connect(m_open, &QToolButton::clicked, this, &PrinterChooser::descriptionAsked);
}

QComboBox *PrinterChooser::menu() const {
  return m_menu;
}

void PrinterChooser::pick(const QString &destination) {
  if (destination != m_destination || !m_asking.isNull()) Q_EMIT chosen(destination);
}

void PrinterChooser::refresh() {
  m_wasAsked = true;
  m_isAwaited = true;
  showNote();
  ask();
}

void PrinterChooser::ask() {
  m_poll.stop();
  m_task.start(
      this,
      [access = m_access](const std::atomic<bool> &cancelled) mutable {
        access.cancelled = &cancelled;
        return listPrinters(access);
      },
      [this](const Answer &answer) { take(answer); });
}

// Nobody sees what has changed in a window that is hidden.
void PrinterChooser::poll() {
  if (!isVisible()) return;
  window()->isMinimized() ? m_poll.start() : ask();
}

void PrinterChooser::showEvent(QShowEvent *event) {
  QWidget::showEvent(event);
  if (m_wasAsked && !event->spontaneous()) m_poll.start();
}

void PrinterChooser::take(const Answer &answer) {
  m_isAwaited = false;
  m_problem = answer ? QString() : failureText(answer.failure());
  // Queues that were known stay on offer when the server stops answering.
  if (answer) m_queues = answer.value();
  for (const Queue &queue : std::as_const(m_queues)) m_everListed.insert(queue.name);
  fill(m_destination);
  m_poll.start();
  Q_EMIT listed();
}

bool PrinterChooser::isGone() const {
  const QString name = destinationFrom(m_destination).queue;
  if (!m_asking.isNull() || !m_everListed.contains(name)) return false;
  return std::none_of(m_queues.begin(), m_queues.end(),
                      [&name](const Queue &queue) { return queue.name == name; });
}

void PrinterChooser::show(const QString &destination) {
  showAsked(destination, QString());
}

void PrinterChooser::showAsked(const QString &destination, const QString &words) {
  m_asking = words;
  fill(destination);
}

void PrinterChooser::setRecent(const QStringList &destinations) {
  m_recent = destinations;
  fill(m_destination);
}

void PrinterChooser::setFileModel(const QString &model) {
  m_fileModel = model;
  fill(m_destination);
}

void PrinterChooser::setFileIsPossible(bool isPossible) {
  m_fileIsPossible = isPossible;
  fill(m_destination);
}

QString PrinterChooser::destination() const {
  return m_destination;
}

PrinterEntry PrinterChooser::fileEntry() const {
  PrinterEntry entry;
  entry.isUsable = m_fileIsPossible;
  entry.title = m_fileModel.isEmpty() ? tr("File") : tr("File (%1)").arg(m_fileModel);
  entry.detail = tr("Prints into a file");
  if (m_fileIsPossible) return entry;
  entry.title = tr("File (needs a printer description)");
  entry.detail = tr("Choose a printer, or open a printer description");
  return entry;
}

QList<PrinterEntry> PrinterChooser::entries() const {
  QList<PrinterEntry> all{fileEntry()};
  for (const QString &recent : m_recent) {
    for (const Queue &queue : m_queues) {
      if (queue.destination() == recent) all << entryOf(queue, true);
    }
  }
  for (const Queue &queue : m_queues) {
    if (!m_recent.contains(queue.destination())) all << entryOf(queue, false);
  }
  const bool isListed = std::any_of(all.begin(), all.end(), [this](const PrinterEntry &entry) {
    return entry.destination == m_destination;
  });
  // A queue that the list lacks: not asked for yet, or gone meanwhile.
  if (!isListed) all << PrinterEntry{m_destination, m_destination, {}, {}, {}};
  return all;
}

void PrinterChooser::fill(const QString &destination) {
  const QSignalBlocker quiet(m_menu);
  m_destination = destination;
  m_printers.setEntries(entries());
  m_menu->showPrinter(destination);
  showNote();
  showDetail();
}

void PrinterChooser::showNote() {
  if (m_isAwaited) return m_menu->setNote(tr("Asking for the printers…"), false);
  const QString problem = m_problem.isNull() ? QString() : tr("No printers: %1").arg(m_problem);
  m_menu->setNote(problem, !m_problem.isNull());
}

void PrinterChooser::showDetail() {
  const QString file = m_fileIsPossible ? tr("Prints into a file")
                                        : tr("Choose a printer, or open a printer description");
  QString detail = m_destination.isEmpty() ? file : m_problem;
  for (const Queue &queue : m_queues) {
    if (queue.destination() == m_destination && m_problem.isNull()) detail = detailOf(queue);
  }
  if (isGone()) detail = tr("No longer on the print server");
  if (!m_asking.isNull()) detail = m_asking;
  m_detail->setWholeText(detail);
  m_menu->setAccessibleDescription(detail);
}

}  // namespace orvek
