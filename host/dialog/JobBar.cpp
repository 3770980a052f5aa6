// SPDX-License-Identifier: Apache-2.0
// Progress at the left, buttons at the right in the desktop's own order.

#include "host/dialog/JobBar.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>

#include "host/dialog/ElidedLabel.h"
#include "platform/ui/FocusMark.h"
#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

constexpr int progressWidth = 200;
constexpr int leastWordsWidth = 260;
constexpr int wholeJob = 100;

// The default button looks as if it had the keyboard, so that it needs another mark where it has.
class DefaultButton final : public QPushButton {
 public:
  using QPushButton::QPushButton;

 protected:
  void paintEvent(QPaintEvent *event) override {
    QPushButton::paintEvent(event);
    QPainter painter(this);
    paintFocusMark(painter, *this);
  }
};

}  // namespace

JobBar::JobBar(QWidget *parent)
    : QWidget(parent),
      m_words(new ElidedLabel(Qt::ElideRight, this)),
      m_progress(new QProgressBar(this)) {
  m_words->setObjectName(QStringLiteral("jobWords"));
  m_words->setMinimumWidth(leastWordsWidth);
  auto *buttons = new QDialogButtonBox(this);
  m_print = new DefaultButton(tr("&Print"), buttons);
  buttons->addButton(m_print, QDialogButtonBox::AcceptRole);
  m_print->setObjectName(QStringLiteral("printButton"));
  m_print->setDefault(true);
  m_cancel = buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
  m_cancel->setObjectName(QStringLiteral("cancelButton"));
  m_cancel->setAutoDefault(false);
  m_progress->setAccessibleName(tr("Progress"));
  m_progress->setFixedWidth(progressWidth);
  m_progress->setTextVisible(false);
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(m_progress);
  row->addWidget(m_words, 1);
  row->addWidget(buttons);
  connect(m_print, &QPushButton::clicked, this, &JobBar::printAsked);
  connect(m_cancel, &QPushButton::clicked, this, &JobBar::cancelAsked);
  setState({});
}

void JobBar::setState(const JobBarState &state) {
  m_print->setEnabled(state.canPrint && !state.isPrinting);
  m_print->setText(state.asksForFile ? tr("&Print to File…") : tr("&Print"));
  m_print->setAccessibleName(m_print->text().remove(QLatin1Char('&')));
  m_cancel->setEnabled(!state.isCancelling);
  m_cancel->setAccessibleName(m_cancel->text());
  m_cancel->setAccessibleDescription(state.isPrinting ? tr("Stops the job")
                                                      : tr("Closes the window without printing"));
  m_progress->setVisible(state.isPrinting);
  showObstacle(state.isPrinting ? QString() : state.obstacle);
  m_words->setVisible(state.isPrinting || !state.obstacle.isNull());
  if (state.isCancelling) setProgress(tr("Stopping the job"), -1);
}

// Beside the button that it is about, and in all that is told of that button.
void JobBar::showObstacle(const QString &obstacle) {
  m_print->setToolTip(plainToolTip(obstacle));
  m_print->setAccessibleDescription(obstacle);
  m_words->setAlignment((obstacle.isNull() ? Qt::AlignLeading : Qt::AlignTrailing) |
                        Qt::AlignVCenter);
  if (!obstacle.isNull()) m_words->setWholeText(obstacle);
}

void JobBar::setProgress(const QString &words, int percent) {
  m_words->setWholeText(words);
  m_progress->setRange(0, percent < 0 ? 0 : wholeJob);
  m_progress->setValue(percent);
}

}  // namespace orvek
