// SPDX-License-Identifier: Apache-2.0
// Words and figures for a job's progress.

#include "host/dialog/ProgressText.h"

#include <QCoreApplication>
#include <QLocale>

namespace orvek {
namespace {

constexpr int wholeJob = 100;

/// The words of this file, for translation.
struct Text {
  Q_DECLARE_TR_FUNCTIONS(orvek::ProgressText)
};

}  // namespace

QString progressInWords(const JobProgress &progress) {
  if (progress.pages == 0 && progress.bytes == 0) return Text::tr("Printing…");
  const QString amount = progress.pages > 0 ? Text::tr("page %1").arg(progress.pages)
                                            : QLocale().formattedDataSize(progress.bytes, 1);
  if (progress.documents < 2) return Text::tr("Printing: %1").arg(amount);
  return Text::tr("Printing document %1 of %2: %3")
      .arg(progress.document)
      .arg(progress.documents)
      .arg(amount);
}

int percentDone(const JobProgress &progress, int pages) {
  if (progress.expected > 0) return int(progress.bytes * wholeJob / progress.expected);
  if (progress.pages > 0 && progress.documents == 1 && pages >= progress.pages) {
    return progress.pages * wholeJob / pages;
  }
  return -1;
}

}  // namespace orvek
