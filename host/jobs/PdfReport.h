// SPDX-License-Identifier: Apache-2.0
// What pdfinfo says of a PDF: asked in one way, by whoever wants to know a document.
#pragma once

#include <QByteArray>
#include <QString>
#include <atomic>

#include "platform/system/Result.h"

namespace orvek {

enum class ReportOn {
  /// How many pages there are, size and turn of the first. Answered within 2 seconds.
  FirstPage,
  /// Besides, size, turn and boxes of every page. Answered within 20 seconds.
  AllPages,
};

/// The report as the tool writes it, in English; of a document that is no PDF nothing worth
/// reading. Blocks, within these times; ends soon after `cancelled` was set.
///
/// Failures: the tool can't be started, crashed, or took too much time, memory or text.
Result<QByteArray> pdfReport(const QString &pdf, ReportOn pages,
                             const std::atomic<bool> &cancelled);

/// Whether a file that begins so counts as a PDF.
bool beginsAsPdf(const QByteArray &bytes);

}  // namespace orvek
