// SPDX-License-Identifier: Apache-2.0
// What panels say of a job that nobody changed: what a window compares a summary with.
#pragma once

#include <optional>

#include "host/panels/PanelSet.h"
#include "host/ppd/Marks.h"

namespace orvek {

/// Keeps those lines once they are known. Owns nothing else, and belongs to the interface's thread.
/// Nothing fails.
class DefaultSummary {
 public:
  /// Nothing while they are not known.
  const std::optional<SummaryText> &lines() const { return m_lines; }

  /// For whoever knows them: a set of panels on an untouched job.
  void know(const SummaryText &lines) { m_lines = lines; }

  /// Finds out what the plug-ins of these panels say for an empty ticket and the PPD's defaults on
  /// the printer's equipment as it is marked. Makes panels of its own for that, which costs what
  /// opening panels costs, and leaves the given ones alone. The marks are as before afterwards.
  void learn(const PanelSet &panels, Marks &marks);

 private:
  std::optional<SummaryText> m_lines;
};

}  // namespace orvek
