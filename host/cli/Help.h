// SPDX-License-Identifier: Apache-2.0
// The help and version texts, made from the table of options.
#pragma once

#include <QByteArray>

namespace orvek {

QByteArray helpText();
QByteArray versionText();

}  // namespace orvek
