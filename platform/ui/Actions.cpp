// SPDX-License-Identifier: Apache-2.0
// Target and action over Qt's signals. Only the signals that users cause are listened to, or
// signals that the vocabulary of controls keeps quiet when code sets a value.

#include "platform/ui/Actions.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QSlider>
#include <QVariant>

#include "platform/system/Log.h"

namespace orvek {
namespace {

constexpr const char *textDidChangeOperation = "controlTextDidChange:";

enum class Event { Action, TextChange };

// Lives as a child of the control and knows what its owner wants to hear of one kind of event.
class Target : public QObject {
 public:
  Target(QWidget *control, QObject *owner, Event event, QMetaMethod method)
      : QObject(control), m_control(control), m_owner(owner), m_event(event), m_method(method) {}

  bool hears(Event event) const { return event == m_event; }

  void send() const {
    if (m_owner) m_method.invoke(m_owner, Qt::DirectConnection, Q_ARG(QWidget *, m_control));
  }

 private:
  QWidget *m_control;
  QPointer<QObject> m_owner;
  Event m_event;
  QMetaMethod m_method;
};

QMetaMethod findMethod(const QObject *owner, const QString &operation) {
  const QByteArray signature = QMetaObject::normalizedSignature(
      (methodName(operation) + "(QWidget*)").toLatin1().constData());
  const QMetaObject *type = owner->metaObject();
  return type->method(type->indexOfMethod(signature.constData()));
}

Target *makeTarget(QWidget *control, QObject *owner, Event event, const QString &operation) {
  const QMetaMethod method = findMethod(owner, operation);
  if (method.isValid()) return new Target(control, owner, event, method);
  logLine(QStringLiteral("interface resource: %1 names the operation \"%2\", which its owner lacks")
              .arg(control->objectName(), operation));
  return nullptr;
}

Target *targetOf(const QWidget *control, Event event) {
  if (control == nullptr) return nullptr;
  for (QObject *child : control->children()) {
    auto *target = dynamic_cast<Target *>(child);
    if (target != nullptr && target->hears(event)) return target;
  }
  return nullptr;
}

void listenForAction(QWidget *control, Target *target) {
  const auto send = [target] { target->send(); };
  if (auto *popUp = qobject_cast<QComboBox *>(control)) {
    QObject::connect(popUp, &QComboBox::activated, target, send);
  } else if (auto *button = qobject_cast<QAbstractButton *>(control)) {
    QObject::connect(button, &QAbstractButton::clicked, target, send);
  } else if (auto *slider = qobject_cast<QSlider *>(control)) {
    QObject::connect(slider, &QSlider::valueChanged, target, send);
  } else if (auto *field = qobject_cast<QLineEdit *>(control)) {
    QObject::connect(field, &QLineEdit::returnPressed, target, send);
  }
}

}  // namespace

QString methodName(const QString &operation) {
  QString name = operation;
  if (name.endsWith(QLatin1Char(':'))) name.chop(1);
  return name.replace(QLatin1Char(':'), QLatin1Char('_'));
}

void connectToOwner(QWidget *control, QObject *owner) {
  const QString action = control->property(actionProperty).toString();
  if (!action.isEmpty()) {
    if (Target *target = makeTarget(control, owner, Event::Action, action)) {
      listenForAction(control, target);
    }
  }
  auto *field = qobject_cast<QLineEdit *>(control);
  if (field == nullptr ||
      control->property(delegateProperty).toString() != QLatin1String("owner")) {
    return;
  }
  if (Target *target =
          makeTarget(control, owner, Event::TextChange, QLatin1String(textDidChangeOperation))) {
    QObject::connect(field, &QLineEdit::textEdited, target, [target] { target->send(); });
  }
}

void sendAction(QWidget *control) {
  if (const Target *target = targetOf(control, Event::Action)) target->send();
}

void notifyTextDidChange(QLineEdit *field) {
  if (const Target *target = targetOf(field, Event::TextChange)) target->send();
}

}  // namespace orvek
