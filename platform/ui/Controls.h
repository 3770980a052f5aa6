// SPDX-License-Identifier: Apache-2.0
// The null-safe vocabulary of views and controls. A request to an absent control does nothing and
// yields zero, false or a null string. Nothing here sends a control's action: only users do.
//
// Titles: where a title is set "with mnemonic", a single "&" marks the shortcut letter and "&&" is
// an ampersand; elsewhere "&" is just a character.
#pragma once

#include <QString>

class QCheckBox;
class QLabel;
class QLineEdit;
class QSlider;
class QWidget;

namespace orvek {

/// The dynamic property by which an interface resource tells an image view from a text label.
inline constexpr const char *imageViewProperty = "imageView";

/// Check-box states.
inline constexpr int stateOff = 0;
inline constexpr int stateOn = 1;
inline constexpr int stateMixed = -1;

/// The view's own flag, not its parents'.
void setHidden(QWidget *view, bool hidden);
bool isHidden(const QWidget *view);

/// The control's own flag, not its parents'.
void setEnabled(QWidget *control, bool enabled);
bool isEnabled(const QWidget *control);

/// Title of a check box or group box, text of a label. Null texts show as empty.
void setTitle(QWidget *control, const QString &title);
void setTitleWithMnemonic(QWidget *control, const QString &title);

/// The title as a reader sees it: no mnemonic marks. Null for an absent control.
QString displayedTitle(const QWidget *control);

/// A title given "with mnemonic", as displayed.
QString withoutMnemonicMarks(const QString &title);

/// A check box's state: 1, 0 or -1. The control may be handed over as any widget (an action's
/// sender).
void setState(QWidget *checkBox, int state);
int state(const QWidget *checkBox);

/// A slider's whole number; setting keeps to the slider's range.
void setIntValue(QSlider *slider, int value);
int intValue(const QSlider *slider);
QString stringValue(const QSlider *slider);

/// A text field's text. Setting the text it already has leaves cursor and selection alone.
void setStringValue(QLineEdit *field, const QString &text);
void setIntValue(QLineEdit *field, int value);
QString stringValue(const QLineEdit *field);

/// Shows the picture in the file (with its "@2x" companion on dense screens). A null path, or one
/// that holds no picture, leaves the view empty.
void setImage(QLabel *imageView, const QString &path);

/// True for a label that shows pictures: one that the interface resource marks with
/// imageViewProperty, or that was given one.
bool isImageView(const QLabel *label);

/// The shown picture's file name without folder; null where the view is empty.
QString imageName(const QLabel *imageView);

}  // namespace orvek
