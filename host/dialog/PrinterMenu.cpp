// SPDX-License-Identifier: Apache-2.0
// A combo box with another list than the toolkit's.

#include "host/dialog/PrinterMenu.h"

#include <QKeyEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>

#include "host/dialog/PrinterMenuSpeech.h"
#include "host/dialog/PrinterModel.h"
#include "host/dialog/PrinterPopup.h"
#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

constexpr int usualCharacters = 28;
constexpr int leastWidth = 120;
/// What styles leave free beside the text.
constexpr int besideText = 4;

bool opensList(const QKeyEvent &key) {
  switch (key.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_F4:
    case Qt::Key_Space:
    case Qt::Key_Select:
      return true;
    default:
      return false;
  }
}

QString typedWith(const QKeyEvent &key) {
  const bool isShortcut = (key.modifiers() & (Qt::ControlModifier | Qt::MetaModifier)) != 0 ||
                          key.modifiers() == Qt::AltModifier;
  const bool isLetter = !key.text().isEmpty() && key.text().at(0).isPrint();
  return isLetter && !isShortcut ? key.text() : QString();
}

}  // namespace

PrinterMenu::PrinterMenu(PrinterModel &printers, QWidget *parent)
    : QComboBox(parent), m_printers(printers) {
  teachSpeechOfPrinterMenus();
  setModel(&printers);
  setMinimumContentsLength(usualCharacters);
  setMinimumWidth(leastWidth);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
}

void PrinterMenu::showPrinter(const QString &destination) {
  setCurrentIndex(m_printers.rowOf(destination));
  setToolTip(plainToolTip(currentData(Qt::AccessibleTextRole).toString()));
}

QWidget *PrinterMenu::openList() const {
  return m_popup != nullptr && m_popup->isVisible() ? m_popup : nullptr;
}

PrinterPopup &PrinterMenu::popup() {
  if (m_popup == nullptr) {
    m_popup = new PrinterPopup(m_printers, this);
    m_popup->setNote(m_note, m_offersAgain);
    connect(m_popup, &PrinterPopup::taken, this, &PrinterMenu::taken);
    connect(m_popup, &PrinterPopup::againAsked, this, &PrinterMenu::againAsked);
    connect(m_popup, &PrinterPopup::closed, this, qOverload<>(&QWidget::update));
  }
  return *m_popup;
}

void PrinterMenu::setNote(const QString &words, bool offersAgain) {
  m_note = words;
  m_offersAgain = offersAgain;
  if (m_popup != nullptr) m_popup->setNote(words, offersAgain);
}

void PrinterMenu::showPopup() {
  openList() != nullptr ? hidePopup() : open({});
}

void PrinterMenu::hidePopup() {
  if (m_popup != nullptr) m_popup->hide();
}

void PrinterMenu::open(const QString &typed) {
  popup().openAt(*this, currentData(PrinterModel::DestinationRole).toString(), typed);
  update();
}

// The end of a name tells it from others as well as its beginning.
void PrinterMenu::paintEvent(QPaintEvent *) {
  QStyleOptionComboBox option;
  initStyleOption(&option);
  const QRect room =
      style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
  const int width = room.width() - besideText;
  if (option.fontMetrics.horizontalAdvance(option.currentText) > width) {
    option.currentText = option.fontMetrics.elidedText(option.currentText, Qt::ElideMiddle, width);
  }
  if (openList() != nullptr) option.state |= QStyle::State_On;
  QStylePainter painter(this);
  painter.setPen(palette().color(QPalette::Text));
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void PrinterMenu::keyPressEvent(QKeyEvent *event) {
  if (opensList(*event)) return open({});
  const QString typed = typedWith(*event);
  if (!typed.isEmpty()) return open(typed);
  // What is left would change what is chosen, or is for the window.
  event->ignore();
}

void PrinterMenu::mousePressEvent(QMouseEvent *event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  showPopup();
}

void PrinterMenu::wheelEvent(QWheelEvent *event) {
  event->ignore();
}

}  // namespace orvek
