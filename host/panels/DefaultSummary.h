// SPDX-License-Identifier: Apache-2.0
// What panels say of a job that nobody changed. Makes panels of its own for that, and leaves the
// session's as they are.
#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <memory>
#include <vector>

#include "host/panels/HostedPanel.h"
#include "host/panels/PluginLoader.h"
#include "host/ppd/Marks.h"

namespace orvek {

/// Title and value of each line of a panel's summary.
using SummaryText = QList<QPair<QString, QString>>;

SummaryText summaryOf(const std::vector<std::unique_ptr<HostedPanel>> &panels);

/// The lines of the plug-ins' panels for an empty ticket and the PPD's defaults on the printer's
/// equipment as it is marked. Costs what opening the panels costs. The marks are as before
/// afterwards.
SummaryText defaultSummary(const std::vector<std::shared_ptr<LoadedPlugin>> &plugins, Marks &marks,
                           bool panelsMayResize);

}  // namespace orvek
