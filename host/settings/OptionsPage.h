// SPDX-License-Identifier: Apache-2.0
// Every option of the printer that no other page shows: grouped, searchable, changed ones marked
// and easy to set back.
#pragma once

#include <QStringList>
#include <QWidget>

#include "host/session/PrintSession.h"

namespace orvek {

class OptionsPage final : public QWidget {
  Q_OBJECT

 public:
  /// Leaves out the options of `claimedKeys` (panels') and those of the general page. Borrows the
  /// session, which must outlive the page.
  OptionsPage(PrintSession &session, const QStringList &claimedKeys, QWidget *parent = nullptr);
};

}  // namespace orvek
