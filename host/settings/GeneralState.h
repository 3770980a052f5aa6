// SPDX-License-Identifier: Apache-2.0
// Everything the general page shows, computed from a session in one place: values, and which rows
// there are.
#pragma once

#include <QList>
#include <QSizeF>
#include <optional>

#include "host/ppd/Paper.h"
#include "host/session/CommonSettings.h"
#include "host/ticket/JobSettings.h"

namespace orvek {

/// A paper size of the user's own, where one is picked. Plain data.
struct CustomPaper {
  /// Points.
  QSizeF size;
  CustomPaperLimits limits;
};

/// What the page of general settings shows. Plain data.
struct GeneralState {
  JobSettings job;
  int pagesPerSheet = 1;
  /// By CommonSetting, then by JobChoice, then further ones; nothing: no such row.
  QList<std::optional<Setting>> settings;
  /// Nothing: no such row.
  std::optional<CustomPaper> customPaper;
};

GeneralState generalState(const PrintSession &session);

}  // namespace orvek
