// SPDX-License-Identifier: Apache-2.0
// Whether what a control says fits into it.
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace orvek::test {

/// One line for each visible control below `root` whose text is wider (or wrapped, higher) than the
/// room that it has for it.
QStringList tooNarrow(const QWidget *root);

}  // namespace orvek::test
