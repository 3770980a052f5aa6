// SPDX-License-Identifier: Apache-2.0
// A document's pages: how many, how large, and the PDF file that shows them. Read out of process.
#pragma once

#include <QList>
#include <QMap>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <atomic>
#include <memory>

#include "host/jobs/ScratchFile.h"
#include "platform/system/Result.h"

namespace orvek {

/// A page as the filters see it. Points. Plain data.
struct DocumentPage {
  /// Of the part that is printed, as displayed; 0 x 0 where there is nothing to see of it.
  QSizeF size{0, 0};
  /// That part within what a renderer shows of the page, as shares of its width and height.
  QRectF part{0, 0, 1, 1};
  /// Degrees clockwise that the document itself turns it: 0, 90, 180 or 270.
  int turn = 0;

  bool operator==(const DocumentPage &) const = default;
};

/// What is known of a document's pages. Plain data, for any thread; shares the file that was made.
struct DocumentPages {
  QList<DocumentPage> pages;
  /// The PDF that they are in; null: there is none.
  QString pdf;
  /// Nothing is left to do for the filters that place pages: pictures come placed on the paper.
  bool isPlaced = false;
  /// PostScript: where it becomes no booklet, filters of its own place it.
  bool isScript = false;
  /// Keeps `pdf` where it was made for this.
  std::shared_ptr<ScratchFile> made;
};

/// What a document is printed with, as far as it shows in its pages. Plain data.
struct PrintedWith {
  QString ppdFile;
  QMap<QString, QString> options;

  bool operator==(const PrintedWith &) const = default;
};

/// Reads the document; one that is no PDF is made one by the filters that will print it. Blocks,
/// within bounds. A PDF that can't be read, or not within these bounds, is a failure; so is a
/// document that the filters know nothing to do with, and standard input.
Result<DocumentPages> readDocumentPages(const QString &path, const PrintedWith &with,
                                        const std::atomic<bool> &cancelled);

/// Whether the file is a PDF by its first bytes.
bool isPdfFile(const QString &path);

/// The options among these that change what pages a document that is no PDF has.
QMap<QString, QString> optionsForPages(const QMap<QString, QString> &options);

/// Reads what pdfinfo says about each page of a document.
QList<DocumentPage> pagesInReport(const QByteArray &report);

}  // namespace orvek
