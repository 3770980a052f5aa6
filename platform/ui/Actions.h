// SPDX-License-Identifier: Apache-2.0
// What happens when a user acts on a control: the operation that the interface resource names for
// it is sent to the owner of the resource.
#pragma once

#include <QString>

class QLineEdit;
class QObject;
class QWidget;

namespace orvek {

/// Dynamic properties of an interface resource: the operation that a control sends, for example
/// "changeFoldingOption:", and, as "owner", who is told of changes of a field's text.
inline constexpr const char *actionProperty = "action";
inline constexpr const char *delegateProperty = "delegate";

/// The C++ method for an operation's name: the last colon dropped, the others as "_".
QString methodName(const QString &operation);

/// Wires one control of a resource to the resource's owner by the control's own properties: a
/// user's act on the control calls the method on the owner with the control as its QWidget*
/// argument; a user's typing in a text field whose delegate is the owner calls
/// controlTextDidChange. An operation that the owner does not have is reported in the log and never
/// sent.
void connectToOwner(QWidget *control, QObject *owner);

/// Sends the control's action as a user's act would. Nothing for an absent or unwired control.
void sendAction(QWidget *control);

/// Tells the field's delegate that its text has changed. Nothing for an absent or unwired field.
void notifyTextDidChange(QLineEdit *field);

}  // namespace orvek
