// SPDX-License-Identifier: Apache-2.0
// The vocabulary of views and controls over Qt Widgets.

#include "platform/ui/Controls.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QGuiApplication>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QSet>
#include <QSignalBlocker>
#include <QSlider>

#include "platform/system/Log.h"
#include "platform/ui/PictureFile.h"

namespace orvek {
namespace {

constexpr const char *imageNameProperty = "orvekImageName";
constexpr qint64 largestPicture = 64 << 20;

// Qt reads a single "&" in every one of these titles as a mnemonic mark.
QString literally(const QString &title) {
  return QString(title).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

// A label draws mnemonics only when it has a buddy; without one it would show the marks themselves.
bool readsMnemonics(const QLabel *label) {
  return label->buddy() != nullptr;
}

// A plain label shows "&" as it stands, one with a buddy must be told that it is meant literally.
void setQtText(QWidget *control, const QString &qtTitle) {
  if (auto *label = qobject_cast<QLabel *>(control)) {
    label->setTextFormat(Qt::PlainText);
    label->setText(readsMnemonics(label) ? qtTitle : withoutMnemonicMarks(qtTitle));
  } else if (auto *button = qobject_cast<QAbstractButton *>(control)) {
    button->setText(qtTitle);
  } else if (auto *box = qobject_cast<QGroupBox *>(control)) {
    box->setTitle(qtTitle);
  }
}

// Qt knows from an "@2x" name how dense a picture is, but finds such files for icons only.
QString densestFile(const QString &path) {
  if (qGuiApp->devicePixelRatio() <= 1) return path;
  const QFileInfo file(path);
  const QString companion =
      file.dir().filePath(file.completeBaseName() + QStringLiteral("@2x.") + file.suffix());
  return QFileInfo::exists(companion) ? companion : path;
}

// Once for each: a panel shows its pictures again and again.
void tellDamaged(const QString &path) {
  static QSet<QString> told;
  if (told.contains(path)) return;
  told.insert(path);
  logLine(path + QStringLiteral(": is no PNG picture, or a damaged one, and is not shown"));
}

// The format is named, so that the toolkit does not load every picture plug-in to ask what a file
// holds.
QPixmap readPicture(const QString &path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  if (!isWholePng(file.read(largestPicture))) {
    tellDamaged(path);
    return {};
  }
  QImageReader reader(path, "png");
  reader.setAutoDetectImageFormat(false);
  return QPixmap::fromImage(reader.read());
}

}  // namespace

void setHidden(QWidget *view, bool hidden) {
  if (view != nullptr) view->setHidden(hidden);
}

bool isHidden(const QWidget *view) {
  // QWidget::isHidden() is also true of a child whose parents were never shown.
  return view != nullptr && view->testAttribute(Qt::WA_WState_ExplicitShowHide) &&
         view->testAttribute(Qt::WA_WState_Hidden);
}

void setEnabled(QWidget *control, bool enabled) {
  if (control != nullptr) control->setEnabled(enabled);
}

bool isEnabled(const QWidget *control) {
  // The flag a parent hands down does not count as the control's own.
  return control != nullptr && !(control->testAttribute(Qt::WA_ForceDisabled));
}

void setTitle(QWidget *control, const QString &title) {
  setQtText(control, literally(title));
}

void setTitleWithMnemonic(QWidget *control, const QString &title) {
  setQtText(control, title);
}

QString displayedTitle(const QWidget *control) {
  if (const auto *label = qobject_cast<const QLabel *>(control)) {
    return readsMnemonics(label) ? withoutMnemonicMarks(label->text()) : label->text();
  }
  if (const auto *button = qobject_cast<const QAbstractButton *>(control)) {
    return withoutMnemonicMarks(button->text());
  }
  if (const auto *box = qobject_cast<const QGroupBox *>(control)) {
    return withoutMnemonicMarks(box->title());
  }
  return {};
}

QString withoutMnemonicMarks(const QString &title) {
  QString shown;
  shown.reserve(title.size());
  for (qsizetype i = 0; i < title.size(); ++i) {
    if (title[i] == QLatin1Char('&') && ++i == title.size()) break;
    shown += title[i];
  }
  return shown;
}

void setState(QWidget *control, int state) {
  auto *box = qobject_cast<QCheckBox *>(control);
  if (box == nullptr) return;
  const QSignalBlocker quiet(box);
  box->setTristate(state == stateMixed);
  box->setCheckState(state == stateMixed ? Qt::PartiallyChecked
                     : state == stateOff ? Qt::Unchecked
                                         : Qt::Checked);
}

int state(const QWidget *control) {
  const auto *box = qobject_cast<const QCheckBox *>(control);
  if (box == nullptr) return stateOff;
  switch (box->checkState()) {
    case Qt::Checked:
      return stateOn;
    case Qt::PartiallyChecked:
      return stateMixed;
    default:
      return stateOff;
  }
}

void setIntValue(QSlider *slider, int value) {
  if (slider == nullptr) return;
  const QSignalBlocker quiet(slider);
  slider->setValue(value);
}

int intValue(const QSlider *slider) {
  return slider == nullptr ? 0 : slider->value();
}

QString stringValue(const QSlider *slider) {
  return slider == nullptr ? QString() : QString::number(slider->value());
}

void setStringValue(QLineEdit *field, const QString &text) {
  if (field == nullptr || field->text() == text) return;
  const QSignalBlocker quiet(field);
  field->setText(text);
}

void setIntValue(QLineEdit *field, int value) {
  setStringValue(field, QString::number(value));
}

QString stringValue(const QLineEdit *field) {
  return field == nullptr ? QString() : field->text();
}

void setImage(QLabel *imageView, const QString &path) {
  if (imageView == nullptr) return;
  const QPixmap picture = path.isNull() ? QPixmap() : readPicture(densestFile(path));
  imageView->setPixmap(picture);
  const QString name = picture.isNull() ? QString() : QFileInfo(path).fileName();
  imageView->setProperty(imageNameProperty, name);
}

bool isImageView(const QLabel *label) {
  return label != nullptr && (label->property(imageViewProperty).toBool() ||
                              label->property(imageNameProperty).isValid());
}

QString imageName(const QLabel *imageView) {
  return imageView == nullptr ? QString() : imageView->property(imageNameProperty).toString();
}

}  // namespace orvek
