// SPDX-License-Identifier: Apache-2.0
// The pop-up of printers as it stands in the window: shows the one that is chosen, and opens a list
// that can be searched.
#pragma once

#include <QComboBox>

namespace orvek {

class PrinterModel;
class PrinterPopup;

/// Changes nothing while it is closed: a printer is asked for when it is chosen, and not when a key
/// or the wheel goes past it. Typing opens the list and searches. Borrows the model, which must
/// outlive it. Belongs to its parent, owns its list, and lives on the interface's thread; nothing
/// fails.
class PrinterMenu final : public QComboBox {
  Q_OBJECT

 public:
  PrinterMenu(PrinterModel &printers, QWidget *parent);

  /// Shows this printer; nothing where there is none of that name.
  void showPrinter(const QString &destination);

  /// What the open list says below its rows.
  void setNote(const QString &words, bool offersAgain);

  /// Null while it is closed.
  QWidget *openList() const;

  void showPopup() override;
  void hidePopup() override;

 Q_SIGNALS:
  void taken(const QString &destination);
  void againAsked();

 protected:
  void paintEvent(QPaintEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void wheelEvent(QWheelEvent *event) override;

 private:
  void open(const QString &typed);
  PrinterPopup &popup();

  PrinterModel &m_printers;
  /// Null: it was never opened.
  PrinterPopup *m_popup = nullptr;
  QString m_note;
  bool m_offersAgain = false;
};

}  // namespace orvek
