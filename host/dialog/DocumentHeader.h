// SPDX-License-Identifier: Apache-2.0
// One thing of the dialog's first row: a name, a word about it, and a picture where there is one.
#pragma once

#include <QStyle>
#include <QWidget>
#include <optional>

class QGridLayout;
class QLabel;
class QPushButton;

namespace orvek {

class ElidedLabel;

/// A picture, a name and a line about it, and what can be done about it. Belongs to its parent,
/// owns its child controls, and lives on the interface's thread. Nothing fails.
class DocumentHeader final : public QWidget {
  Q_OBJECT

 public:
  explicit DocumentHeader(QWidget *parent = nullptr);

  /// Room is made at once. The picture itself comes after the first paint: looking for it in the
  /// desktop's icon theme takes longer than building the rest of the header.
  void setPicture(QStyle::StandardPixmap picture);

  /// A name too long for the window is shortened in its middle; the tool tip has all of it.
  void setTexts(const QString &name, const QString &detail);

  /// A button behind the texts; null: there is none.
  void setAction(const QString &text);

  /// Takes over a button that stands last.
  void addButton(QWidget *button);

 Q_SIGNALS:
  void actionAsked();

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  void loadPicture();

  std::optional<QStyle::StandardPixmap> m_waitingPicture;
  QLabel *m_picture;
  ElidedLabel *m_name;
  QLabel *m_detail;
  QPushButton *m_action;
  QGridLayout *m_grid;
};

/// "8 pages", "1 page"; null for 0, which stands for unknown.
QString pagesInWords(int pages);

}  // namespace orvek
