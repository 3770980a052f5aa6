// SPDX-License-Identifier: Apache-2.0
// Asks the PPD, marked as the job's other filters mark it.

#include "driver/JobPaper.h"

#include <memory>

#include "platform/printing/TrayOrder.h"

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

using Description = std::unique_ptr<ppd_file_t, CloseDescription>;

Description markedBy(const FilterOptions &options, const std::string &ppdFile) {
  Description ppd(ppdFile.empty() ? nullptr : ppdOpenFile(ppdFile.c_str()));
  if (ppd) options.mark(ppd.get());
  return ppd;
}

bool wantsLastFirst(ppd_file_t *ppd) {
  const ppd_choice_t *order = ppdFindMarkedChoice(ppd, "OutputOrder");
  const ppd_choice_t *tray = ppdFindMarkedChoice(ppd, "OutputBin");
  const std::string word =
      order != nullptr ? order->choice : trayOrder(ppd, tray == nullptr ? nullptr : tray->choice);
  return imposition::lowerCase(word) == "reverse";
}

std::optional<JobPaper> markedPaper(ppd_file_t *ppd, int targetPaper) {
  JobPaper paper;
  markTargetPaper(ppd, targetPaper, &paper.pageSize);
  const ppd_size_t *size = ppdPageSize(ppd, nullptr);
  if (size == nullptr) return std::nullopt;
  paper.size = {size->width, size->length};
  if (!imposition::isDrawable(paper.size)) return std::nullopt;
  return paper;
}

}  // namespace

SheetFacts sheetFactsIn(const std::string &ppdFile, const FilterOptions &options,
                        const imposition::BookletKeys &keys) {
  const Description ppd = markedBy(options, ppdFile);
  if (!ppd) return {};
  const bool lastFirst = wantsLastFirst(ppd.get());
  return {markedPaper(ppd.get(), keys.targetPaper), lastFirst};
}

}  // namespace orvek::driver
