// SPDX-License-Identifier: Apache-2.0
// The file comes first, then the queues by name, the default marked.

#include "host/dialog/PrinterChooser.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QToolButton>
#include <QVBoxLayout>
#include <utility>

#include "host/dialog/ElidedLabel.h"
#include "host/translations/FailureText.h"
#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

constexpr int usualCharacters = 28;
constexpr int leastWidth = 120;
constexpr int mostVisibleItems = 16;
const QString separator = QStringLiteral(" · ");

// "Idle · Second floor · Toner is low"
QString detailOf(const Queue &queue) {
  QStringList parts{stateInWords(queue)};
  if (!queue.location.isEmpty()) parts << queue.location;
  parts << queue.reasons;
  if (!queue.stateMessage.isEmpty() && !parts.contains(queue.stateMessage)) {
    parts << queue.stateMessage;
  }
  return parts.join(separator);
}

QString titleOf(const Queue &queue) {
  const QString title = queue.destination();
  return queue.isDefault ? PrinterChooser::tr("%1 (default)").arg(title) : title;
}

}  // namespace

PrinterChooser::PrinterChooser(ServerAccess access, QWidget *parent)
    : QWidget(parent),
      m_access(std::move(access)),
      m_menu(new QComboBox(this)),
      m_open(new QToolButton(this)),
      m_detail(new ElidedLabel(Qt::ElideRight, this)) {
  m_menu->setObjectName(QStringLiteral("printerMenu"));
  m_menu->setAccessibleName(tr("Printer"));
  m_menu->setMinimumContentsLength(usualCharacters);
  m_menu->setMinimumWidth(leastWidth);
  m_menu->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_menu->setMaxVisibleItems(mostVisibleItems);
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
  connect(m_menu, &QComboBox::activated, this, &PrinterChooser::pick);
  fill({});
}

// A way to a printer is none itself: keys and wheel go through the list, and must not end up in a
// question.
void PrinterChooser::buildOpen() {
  m_open->setObjectName(QStringLiteral("openDescription"));
  m_open->setText(QStringLiteral("…"));
  m_open->setFixedHeight(m_menu->sizeHint().height());
  m_open->setAccessibleName(tr("Open Printer Description…"));
  m_open->setToolTip(tr("Open Printer Description…"));
  m_open->setFocusPolicy(Qt::StrongFocus);
  connect(m_open, &QToolButton::clicked, this, &PrinterChooser::descriptionAsked);
}

void PrinterChooser::pick() {
  const QString destination = m_menu->currentData().toString();
  if (destination != m_destination || !m_asking.isNull()) Q_EMIT chosen(destination);
}

void PrinterChooser::refresh() {
  m_task.start(
      this,
      [access = m_access](const std::atomic<bool> &cancelled) mutable {
        access.cancelled = &cancelled;
        return listPrinters(access);
      },
      [this](const Answer &answer) { take(answer); });
}

void PrinterChooser::take(const Answer &answer) {
  m_problem = answer ? QString() : failureText(answer.failure());
  // Queues that were known stay on offer when the server stops answering.
  if (answer) m_queues = answer.value();
  fill(m_destination);
  Q_EMIT listed();
}

void PrinterChooser::show(const QString &destination) {
  showAsked(destination, QString());
}

void PrinterChooser::showAsked(const QString &destination, const QString &words) {
  m_asking = words;
  fill(destination);
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

void PrinterChooser::fill(const QString &destination) {
  const QSignalBlocker quiet(m_menu);
  m_destination = destination;
  m_menu->clear();
  if (m_fileIsPossible) {
    m_menu->addItem(m_fileModel.isEmpty() ? tr("File") : tr("File (%1)").arg(m_fileModel));
  } else {
    addNote(tr("File (needs a printer description)"));
  }
  for (const Queue &queue : m_queues) {
    m_menu->addItem(titleOf(queue), queue.destination());
    const int row = m_menu->count() - 1;
    m_menu->setItemData(row, plainToolTip(detailOf(queue)), Qt::ToolTipRole);
    const QString spoken = titleOf(queue) + QStringLiteral(", ") + detailOf(queue);
    m_menu->setItemData(row, spoken, Qt::AccessibleTextRole);
  }
  // A queue that the list lacks: not asked for yet, or gone meanwhile.
  if (!destination.isEmpty() && m_menu->findData(destination) < 0) {
    m_menu->addItem(destination, destination);
  }
  if (!m_problem.isNull()) addNote(tr("No printers: %1").arg(m_problem));
  m_menu->setCurrentIndex(destination.isEmpty() ? 0 : m_menu->findData(destination));
  showDetail();
}

void PrinterChooser::addNote(const QString &text) {
  m_menu->addItem(text);
  auto *items = qobject_cast<QStandardItemModel *>(m_menu->model());
  items->item(m_menu->count() - 1)->setEnabled(false);
}

void PrinterChooser::showDetail() {
  const QString file = m_fileIsPossible ? tr("Prints into a file")
                                        : tr("Choose a printer, or open a printer description");
  QString detail = m_destination.isEmpty() ? file : m_problem;
  for (const Queue &queue : m_queues) {
    if (queue.destination() == m_destination && m_problem.isNull()) detail = detailOf(queue);
  }
  if (!m_asking.isNull()) detail = m_asking;
  m_detail->setWholeText(detail);
  m_menu->setAccessibleDescription(detail);
}

}  // namespace orvek
