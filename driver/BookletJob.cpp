// SPDX-License-Identifier: Apache-2.0
// The document comes in, the standard filters bring it into shape, the sheets go out.

#include "driver/BookletJob.h"

#include <unistd.h>

#include <cstdlib>

#include "driver/Imposer.h"
#include "driver/JobPaper.h"
#include "driver/StandardFilters.h"
#include "driver/TemporaryFile.h"

namespace orvek::driver {
namespace {

/// What other filters did to the pages before they came here. A second time, it would befall
/// sheets.
void removeWhatIsDone(FilterOptions *options) {
  options->remove({"page-ranges", "page-set", "outputorder", "OutputOrder", "orientation-requested",
                   "landscape", "mirror", "fit-to-page", "fitplot", "print-scaling", "scaling",
                   "natural-scaling", "position", "number-up", "number-up-layout", "page-border",
                   "booklet", "booklet-signature", "cupsEvenDuplex"});
  options->remove({enableBookletKey.data(), rightToLeftKey.data(), pageBordersKey.data(),
                   gutterKey.data(), creepKey.data(), targetPaperSizeKey.data()});
}

std::string ppdFile() {
  const char *path = std::getenv("PPD");
  return path == nullptr ? std::string() : path;
}

bool isReversed(const FilterOptions &options) {
  for (const char *name : {"outputorder", "page-delivery"}) {
    const auto order = options.value(name);
    if (order && order->starts_with("reverse")) return true;
  }
  return false;
}

/// PostScript becomes pages the way it does for printers that want PDF.
Result<File> pagesOfPostScript(const FilterCall &call) {
  auto pages = namelessFile();
  if (!pages) return pages;
  const auto made = runStandardFilters({"gstopdf", "pdftopdf"}, call, STDIN_FILENO,
                                       ::fileno(pages.value().get()));
  if (!made) return made.failure();
  if (made.value() != 0) {
    return Failure{FailureKind::Io, QStringLiteral("the document"),
                   QStringLiteral("its PostScript can't be made into pages")};
  }
  ::lseek(::fileno(pages.value().get()), 0, SEEK_SET);
  return pages;
}

Result<File> documentOf(const BookletJob &job) {
  if (job.kind == DocumentKind::PostScript) return pagesOfPostScript(job.call);
  return job.call.file.empty() ? spooled(STDIN_FILENO) : openedFile(job.call.file);
}

bool isEmpty(std::FILE *file) {
  return std::fgetc(file) == EOF;
}

/// The sheets of the job's document, ready to be read; empty for an empty document.
Result<File> sheetsOf(const BookletJob &job, FilterOptions *options) {
  auto document = documentOf(job);
  if (!document) return document;
  auto sheets = namelessFile();
  if (!sheets) return sheets;
  const auto paper = paperOf(ppdFile(), *options, job.keys);
  BookletRequest request{job.keys, std::nullopt, isReversed(*options)};
  if (paper) request.paper = paper->size;
  prepareForSheets(options, paper ? paper->pageSize : std::string());
  // Whoever made nothing of the document has said why.
  if (isEmpty(document.value().get())) return sheets;
  const auto imposed = imposeDocument(document.value().get(), sheets.value().get(), request);
  if (!imposed) return imposed.failure();
  ::lseek(::fileno(sheets.value().get()), 0, SEEK_SET);
  return sheets;
}

}  // namespace

void prepareForSheets(FilterOptions *options, const std::string &pageSize) {
  removeWhatIsDone(options);
  options->remove({"sides", "Duplex", "JCLDuplex", "EFDuplex", "KD03Duplex", "duplex",
                   "multiple-document-handling", "collate"});
  options->set("Duplex", "DuplexTumble");
  options->set("sides", "two-sided-short-edge");
  options->set("Collate", "True");
  if (pageSize.empty()) return;
  options->remove({"media", "media-col", "media-size", "PageSize", "PageRegion"});
  options->set("PageSize", pageSize.c_str());
}

Result<int> writeSheets(const BookletJob &job, FilterOptions *options) {
  const auto sheets = sheetsOf(job, options);
  if (!sheets) return sheets.failure();
  if (const Status copied = copyOut(sheets.value().get(), STDOUT_FILENO); !copied) {
    return copied.failure();
  }
  return 0;
}

Result<int> printBooklet(const BookletJob &job, FilterOptions *options) {
  const auto sheets = sheetsOf(job, options);
  if (!sheets) return sheets.failure();
  FilterCall call = job.call;
  call.file.clear();
  call.options = options->text();
  return runStandardFilters({"pdftops"}, call, ::fileno(sheets.value().get()), STDOUT_FILENO);
}

}  // namespace orvek::driver
