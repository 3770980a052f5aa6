// SPDX-License-Identifier: Apache-2.0
// The document comes in, the standard filters bring it into shape, the sheets go out.

#include "driver/BookletJob.h"

#include <unistd.h>

#include <cstdlib>
#include <span>
#include <string_view>

#include "driver/Imposer.h"
#include "driver/JobPaper.h"
#include "driver/StandardFilters.h"
#include "driver/TemporaryFile.h"
#include "imposition/SheetOptions.h"
#include "imposition/StandardOptions.h"

namespace orvek::driver {
namespace {

void removeAll(FilterOptions *options, std::span<const char *const> names) {
  for (const char *name : names) options->remove({name});
}

std::string ppdFile() {
  const char *path = std::getenv("PPD");
  return path == nullptr ? std::string() : path;
}

/// Filters hand on what printers are to understand; without a single page that is a frame of
/// commands around nothing.
bool hasPages(std::FILE *document) {
  constexpr std::size_t bytesThatTell = 4096;
  constexpr std::string_view jobLanguage = "\033%-12345X";
  const std::string bytes = beginningOf(document, bytesThatTell);
  return !bytes.starts_with(jobLanguage) || bytes.size() == bytesThatTell ||
         bytes.find("%!") != std::string::npos || bytes.find("%PDF-") != std::string::npos;
}

Failure noPages() {
  return {FailureKind::Io, QStringLiteral("the document"),
          QStringLiteral("none of its pages is to be printed; look at the page ranges")};
}

/// PostScript becomes pages the way it does for printers that want PDF.
Result<File> pagesOfPostScript(FilterCall call, const File &document) {
  auto pages = namelessFile();
  if (!pages) return pages;
  call.file.clear();
  const auto made = runStandardFilters({"gstopdf", "pdftopdf"}, call, ::fileno(document.get()),
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
  auto document = job.call.file.empty() ? spooled(STDIN_FILENO) : openedFile(job.call.file);
  if (!document) return document;
  if (!hasPages(document.value().get())) return noPages();
  if (job.kind != DocumentKind::PostScript) return document;
  return pagesOfPostScript(job.call, document.value());
}

bool isEmpty(std::FILE *file) {
  return std::fgetc(file) == EOF;
}

BookletRequest requestOf(const BookletJob &job, const FilterOptions &options,
                         const std::optional<JobPaper> &paper) {
  const auto asked =
      imposition::readReversed([&options](const char *name) { return options.value(name); });
  const bool isForTray = !asked && wantsLastFirst(ppdFile(), options);
  BookletRequest request{job.keys, std::nullopt, asked.value_or(isForTray), isForTray};
  if (paper) request.paper = paper->size;
  return request;
}

/// The sheets of the job's document, ready to be read; empty for an empty document.
Result<File> sheetsOf(const BookletJob &job, FilterOptions *options) {
  auto document = documentOf(job);
  if (!document) return document;
  auto sheets = namelessFile();
  if (!sheets) return sheets;
  const auto paper = paperOf(ppdFile(), *options, job.keys);
  const BookletRequest request = requestOf(job, *options, paper);
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
  removeAll(options, imposition::doneWithSheets);
  removeAll(options, imposition::againstSheets);
  for (const auto &[name, value] : imposition::sheetOptions) options->set(name, value);
  if (pageSize.empty()) return;
  removeAll(options, imposition::paperOptions);
  options->set(imposition::sheetPaperOption, pageSize.c_str());
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
