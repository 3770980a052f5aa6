// SPDX-License-Identifier: Apache-2.0
// Reads controls through the vocabulary that panels use, so that both speak of the same state.

#include "host/cli/ControlInspection.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>

#include "platform/ui/Controls.h"
#include "platform/ui/Frames.h"
#include "platform/ui/PopUps.h"

namespace orvek {
namespace {

// A null text is JSON's null, an empty one an empty string.
QJsonValue textOrNull(const QString &text) {
  return text.isNull() ? QJsonValue() : QJsonValue(text);
}

QJsonArray frameOf(const QWidget *view) {
  const QRectF rectangle = frame(view);
  return {rectangle.x(), rectangle.y(), rectangle.width(), rectangle.height()};
}

void addPopUp(const QComboBox *popUp, QJsonObject *state) {
  QJsonArray items;
  for (int i = 0; i < numberOfItems(popUp); ++i) {
    items.append(QJsonObject{{QStringLiteral("title"), textOrNull(itemTitle(popUp, i))},
                             {QStringLiteral("enabled"), isItemEnabled(popUp, i)}});
  }
  state->insert(QStringLiteral("items"), items);
  state->insert(QStringLiteral("selected"), indexOfSelectedItem(popUp));
}

void addSlider(const QSlider *slider, QJsonObject *state) {
  state->insert(QStringLiteral("value"), intValue(slider));
  state->insert(QStringLiteral("minimum"), slider->minimum());
  state->insert(QStringLiteral("maximum"), slider->maximum());
}

void addLabel(const QLabel *label, QJsonObject *state) {
  if (isImageView(label)) {
    state->insert(QStringLiteral("image"), textOrNull(imageName(label)));
  } else {
    state->insert(QStringLiteral("title"), displayedTitle(label));
  }
}

void addKind(const QWidget *control, QJsonObject *shown) {
  if (const auto *popUp = qobject_cast<const QComboBox *>(control)) {
    addPopUp(popUp, shown);
  } else if (const auto *slider = qobject_cast<const QSlider *>(control)) {
    addSlider(slider, shown);
  } else if (const auto *label = qobject_cast<const QLabel *>(control)) {
    addLabel(label, shown);
  } else if (const auto *field = qobject_cast<const QLineEdit *>(control)) {
    shown->insert(QStringLiteral("text"), stringValue(field));
  } else if (qobject_cast<const QCheckBox *>(control) != nullptr) {
    shown->insert(QStringLiteral("title"), displayedTitle(control));
    shown->insert(QStringLiteral("state"), state(control));
  } else if (qobject_cast<const QGroupBox *>(control) != nullptr) {
    shown->insert(QStringLiteral("title"), displayedTitle(control));
  }
}

}  // namespace

QJsonValue inspectControl(const QWidget *control) {
  if (control == nullptr) return {};
  QJsonObject shown{{QStringLiteral("hidden"), isHidden(control)},
                    {QStringLiteral("enabled"), isEnabled(control)},
                    {QStringLiteral("frame"), frameOf(control)}};
  addKind(control, &shown);
  return shown;
}

}  // namespace orvek
