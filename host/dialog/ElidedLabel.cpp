// SPDX-License-Identifier: Apache-2.0
// Shortens anew whenever the width changes.

#include "host/dialog/ElidedLabel.h"

namespace orvek {

ElidedLabel::ElidedLabel(Qt::TextElideMode mode, QWidget *parent)
    : PlainLabel(parent), m_mode(mode) {
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedLabel::setWholeText(const QString &text) {
  m_text = text;
  setToolTip(plainToolTip(text));
  setAccessibleName(text);
  fit();
}

void ElidedLabel::resizeEvent(QResizeEvent *event) {
  PlainLabel::resizeEvent(event);
  fit();
}

void ElidedLabel::fit() {
  // Asking for a text with an ellipsis has the toolkit look for a font that has one, which takes
  // longer than all the rest of a window's start. Most texts fit. Before the first layout the width
  // means nothing.
  const bool fits =
      !testAttribute(Qt::WA_Resized) || fontMetrics().horizontalAdvance(m_text) <= width();
  const QString shortened = fits ? m_text : fontMetrics().elidedText(m_text, m_mode, width());
  if (shortened != text()) setText(shortened);
}

}  // namespace orvek
