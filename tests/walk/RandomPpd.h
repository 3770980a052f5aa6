// SPDX-License-Identifier: Apache-2.0
// Valid PPD files, made at random.
#pragma once

#include <QByteArray>
#include <QRandomGenerator>

namespace orvek::test {

/// A printer with some of the finishing options and equipment that the panel knows, some that it
/// does not know, and constraints of both forms among all of them. Nothing conflicts by default.
QByteArray randomPpd(QRandomGenerator &random);

}  // namespace orvek::test
