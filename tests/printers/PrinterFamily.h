// SPDX-License-Identifier: Apache-2.0
// The PPD files of the printer family, opened with libcups for the tests.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/printing/PPD.h"
#include "tests/support/UserLanguage.h"

namespace orvek::test {

struct ClosePPD {
  void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using PPD = std::unique_ptr<ppd_file_t, ClosePPD>;

inline const std::vector<std::string> models = {"6180", "4150", "2120"};
inline const std::vector<std::string> otherLanguages = {"de", "fr", "ja",    "es", "it",
                                                        "pt", "ko", "zh_CN", "ar"};

inline std::string ppdPath(const std::string &model) {
  return std::string(ORVEK_SOURCE_DIR "/printers/Orvek-") + model + ".ppd";
}

/// The printer's description with its defaults marked; null where the file can't be read.
inline PPD openPrinter(const std::string &model) {
  PPD ppd(ppdOpenFile(ppdPath(model).c_str()));
  if (ppd) ppdMarkDefaults(ppd.get());
  return ppd;
}

/// Every option of every group, installable ones included.
inline std::vector<ppd_option_t *> allOptions(ppd_file_t *ppd) {
  std::vector<ppd_option_t *> options;
  for (int g = 0; g < ppd->num_groups; ++g) {
    ppd_group_t &group = ppd->groups[g];
    for (int o = 0; o < group.num_options; ++o) options.push_back(&group.options[o]);
  }
  return options;
}

/// The keywords of an option's choices, in the file's order; empty for an option it lacks.
inline std::vector<std::string> choiceKeywords(ppd_file_t *ppd, const char *keyword) {
  std::vector<std::string> keywords;
  const ppd_option_t *option = ppdFindOption(ppd, keyword);
  for (int i = 0; option != nullptr && i < option->num_choices; ++i) {
    keywords.emplace_back(option->choices[i].choice);
  }
  return keywords;
}

/// The printer's description with its texts in a language.
inline PPD openPrinterIn(const std::string &language, const std::string &model) {
  const UserLanguage user(language);
  PPD ppd = openPrinter(model);
  if (ppd) ppdLocalize(ppd.get());
  return ppd;
}

/// The text that the file itself gives an option ("Translation", keyword) or a choice (option,
/// keyword) in a language, once opened for that language; empty where there is none.
inline std::string translated(ppd_file_t *ppd, const std::string &language,
                              const std::string &section, const std::string &keyword) {
  const ppd_attr_t *text = ppdFindAttr(ppd, (language + "." + section).c_str(), keyword.c_str());
  return text != nullptr ? text->text : "";
}

}  // namespace orvek::test
