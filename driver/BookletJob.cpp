// SPDX-License-Identifier: Apache-2.0
// The document comes in, the standard filters bring it into shape, the sheets go out.

#include "driver/BookletJob.h"

#include <unistd.h>

#include <cstdio>
#include <string_view>
#include <utility>

#include "driver/Imposer.h"
#include "driver/JobPaper.h"
#include "driver/StandardFilters.h"
#include "driver/TemporaryFile.h"
#include "imposition/SheetOptions.h"
#include "imposition/StandardOptions.h"

namespace orvek::driver {
namespace {

constexpr const char *nameless = "the document";

constexpr std::size_t bytesThatTell = 4096;

/// Filters hand on what printers are to understand; without a single page that is a frame of
/// commands around nothing.
bool hasPages(const std::string &bytes) {
  constexpr std::string_view jobLanguage = "\033%-12345X";
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
  if (made.value().status == 0 && made.value().written == 0) {
    return Failure{FailureKind::Io, QStringLiteral("the document"),
                   QStringLiteral("nothing came of its PostScript; look at the page ranges, and "
                                  "make room for temporary files")};
  }
  if (made.value().status != 0) {
    return Failure{FailureKind::Io, QStringLiteral("the document"),
                   QStringLiteral("its PostScript can't be made into pages")};
  }
  ::lseek(::fileno(pages.value().get()), 0, SEEK_SET);
  return pages;
}

Result<File> fileOf(BookletJob *job) {
  if (job->document.copy) return std::move(job->document.copy);
  return job->call.file.empty() ? spooled(STDIN_FILENO, nameless) : openedFile(job->call.file);
}

Result<File> documentOf(BookletJob *job) {
  auto document = fileOf(job);
  if (!document) return document;
  const auto beginning = beginningOf(::fileno(document.value().get()), 0, bytesThatTell, nameless);
  if (!beginning) return beginning.failure();
  if (!hasPages(beginning.value())) return noPages();
  if (job->document.kind != DocumentKind::PostScript) return document;
  return pagesOfPostScript(job->call, document.value());
}

BookletRequest requestOf(const BookletJob &job, const FilterOptions &options,
                         const SheetFacts &facts) {
  const auto asked =
      imposition::readReversed([&options](const char *name) { return options.value(name); });
  const bool isForTray = !asked && facts.wantsLastFirst;
  BookletRequest request{job.keys, std::nullopt, asked.value_or(isForTray), isForTray};
  if (facts.paper) request.paper = facts.paper->size;
  return request;
}

// As filters say such things.
void tellMissing(int pages) {
  if (pages == 0) return;
  std::fprintf(stderr, "WARNING: %s: it lacks %d of its pages, which stay blank\n", nameless,
               pages);
}

/// The sheets of the job's document, ready to be read; empty for an empty document.
Result<File> sheetsOf(BookletJob *job, FilterOptions *options) {
  auto document = documentOf(job);
  if (!document) return document;
  auto sheets = namelessFile();
  if (!sheets) return sheets;
  // The order matters. While the job's StandardPPD lives the environment names its copy, so only
  // now is that what the filters go by; and prepareForSheets() takes out of the options what the
  // request is read from.
  const SheetFacts facts = sheetFactsIn(environmentVariable("PPD"), *options, job->keys);
  const BookletRequest request = requestOf(*job, *options, facts);
  prepareForSheets(options, facts.paper ? facts.paper->pageSize : std::string());
  // Whoever made nothing of the document has said why.
  if (job->document.isEmpty) return sheets;
  const auto imposed = imposeDocument(document.value().get(), sheets.value().get(), request);
  if (!imposed) return imposed.failure();
  tellMissing(imposed.value().missingPages);
  ::lseek(::fileno(sheets.value().get()), 0, SEEK_SET);
  return sheets;
}

}  // namespace

void prepareForSheets(FilterOptions *options, const std::string &pageSize) {
  options->remove(imposition::doneWithSheets);
  options->remove(imposition::againstSheets);
  for (const auto &[name, value] : imposition::sheetOptions) options->set(name, value);
  if (pageSize.empty()) return;
  options->remove(imposition::paperOptions);
  options->set(imposition::sheetPaperOption, pageSize.c_str());
}

Result<int> writeSheets(BookletJob job, FilterOptions *options) {
  const auto sheets = sheetsOf(&job, options);
  if (!sheets) return sheets.failure();
  if (const Status copied = copyOut(sheets.value().get(), STDOUT_FILENO); !copied) {
    return copied.failure();
  }
  return 0;
}

Result<int> printBooklet(BookletJob job, FilterOptions *options) {
  const auto sheets = sheetsOf(&job, options);
  if (!sheets) return sheets.failure();
  FilterCall call = job.call;
  call.file.clear();
  call.options = options->text();
  return printWith("pdftops", call, ::fileno(sheets.value().get()), job.document.isEmpty);
}

}  // namespace orvek::driver
