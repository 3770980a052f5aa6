// SPDX-License-Identifier: Apache-2.0
// One thing of the dialog's first row: a name, a word about it, and a picture where there is one.
#pragma once

#include <QStyle>
#include <QWidget>

class QLabel;

namespace orvek {

class ElidedLabel;

class DocumentHeader final : public QWidget {
  Q_OBJECT

 public:
  explicit DocumentHeader(QWidget *parent = nullptr);

  void setPicture(QStyle::StandardPixmap picture);

  /// A name too long for the window is shortened in its middle; the tool tip has all of it.
  void setTexts(const QString &name, const QString &detail);

 private:
  QLabel *m_picture;
  ElidedLabel *m_name;
  QLabel *m_detail;
};

/// "8 pages", "1 page"; null for 0, which stands for unknown.
QString pagesInWords(int pages);

}  // namespace orvek
