// SPDX-License-Identifier: Apache-2.0
// A line of text that takes what width there is and is shortened to it.
#pragma once

#include "platform/ui/PlainText.h"

namespace orvek {

/// The whole text is the tool tip and the accessible name. Belongs to its parent; for the
/// interface's thread. Nothing fails.
class ElidedLabel final : public PlainLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(Qt::TextElideMode mode, QWidget *parent = nullptr);

  void setWholeText(const QString &text);
  const QString &wholeText() const { return m_text; }

 protected:
  void resizeEvent(QResizeEvent *event) override;

 private:
  void fit();

  Qt::TextElideMode m_mode;
  QString m_text;
};

}  // namespace orvek
