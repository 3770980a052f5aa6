// SPDX-License-Identifier: Apache-2.0
// Asks the PPD, marked as the job's other filters mark it.

#include "driver/JobPaper.h"

#include <memory>

namespace orvek::driver {
namespace {

constexpr const char *pageSizeKeyword = "PageSize";

struct CloseDescription {
  void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};

void markTargetPaper(ppd_file_t *ppd, int targetPaper, std::string *pageSize) {
  const ppd_option_t *option = ppdFindOption(ppd, pageSizeKeyword);
  if (option == nullptr) return;
  const auto choice = imposition::targetPaperChoice(targetPaper, option->num_choices);
  if (!choice) return;
  *pageSize = option->choices[*choice].choice;
  ppdMarkOption(ppd, pageSizeKeyword, pageSize->c_str());
}

}  // namespace

std::optional<JobPaper> paperOf(const std::string &ppdFile, const FilterOptions &options,
                                const imposition::BookletKeys &keys) {
  const std::unique_ptr<ppd_file_t, CloseDescription> ppd(
      ppdFile.empty() ? nullptr : ppdOpenFile(ppdFile.c_str()));
  if (!ppd) return std::nullopt;
  options.mark(ppd.get());
  JobPaper paper;
  markTargetPaper(ppd.get(), keys.targetPaper, &paper.pageSize);
  const ppd_size_t *size = ppdPageSize(ppd.get(), nullptr);
  if (size == nullptr) return std::nullopt;
  paper.size = {size->width, size->length};
  if (!imposition::isDrawable(paper.size)) return std::nullopt;
  return paper;
}

}  // namespace orvek::driver
