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

using Description = std::unique_ptr<ppd_file_t, CloseDescription>;

Description markedBy(const FilterOptions &options, const std::string &ppdFile) {
  Description ppd(ppdFile.empty() ? nullptr : ppdOpenFile(ppdFile.c_str()));
  if (ppd) options.mark(ppd.get());
  return ppd;
}

// Looked for in the same places as the standard filters do.
std::string orderIn(ppd_file_t *ppd) {
  if (const ppd_choice_t *order = ppdFindMarkedChoice(ppd, "OutputOrder")) return order->choice;
  const ppd_choice_t *tray = ppdFindMarkedChoice(ppd, "OutputBin");
  const ppd_attr_t *order =
      tray == nullptr ? nullptr : ppdFindAttr(ppd, "PageStackOrder", tray->choice);
  if (order == nullptr) order = ppdFindAttr(ppd, "DefaultOutputOrder", nullptr);
  return order == nullptr || order->value == nullptr ? std::string() : order->value;
}

}  // namespace

std::optional<JobPaper> paperOf(const std::string &ppdFile, const FilterOptions &options,
                                const imposition::BookletKeys &keys) {
  const Description ppd = markedBy(options, ppdFile);
  if (!ppd) return std::nullopt;
  JobPaper paper;
  markTargetPaper(ppd.get(), keys.targetPaper, &paper.pageSize);
  const ppd_size_t *size = ppdPageSize(ppd.get(), nullptr);
  if (size == nullptr) return std::nullopt;
  paper.size = {size->width, size->length};
  if (!imposition::isDrawable(paper.size)) return std::nullopt;
  return paper;
}

bool wantsLastFirst(const std::string &ppdFile, const FilterOptions &options) {
  const Description ppd = markedBy(options, ppdFile);
  return ppd && imposition::lowerCase(orderIn(ppd.get())) == "reverse";
}

}  // namespace orvek::driver
