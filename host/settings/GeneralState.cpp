// SPDX-License-Identifier: Apache-2.0
// Asks the session.

#include "host/settings/GeneralState.h"

#include <algorithm>

#include "host/ppd/CustomChoice.h"
#include "host/session/JobChoices.h"
#include "host/session/PrintSession.h"

namespace orvek {
namespace {

std::optional<CustomPaper> customPaperOf(const PrintSession &session,
                                         const std::optional<Setting> &paperSetting) {
  if (!paperSetting || !isCustomChoice(paperSetting->current)) return std::nullopt;
  const PrinterDescription &printer = session.marks().printer();
  const std::optional<CustomPaperLimits> limits = customPaperLimits(printer);
  if (!limits) return std::nullopt;
  QSizeF size = paperSize(printer, paperSetting->current);
  if (size.isEmpty()) size = limits->least;
  return CustomPaper{size, *limits};
}

}  // namespace

GeneralState generalState(const PrintSession &session) {
  GeneralState state;
  state.job = session.job().settings();
  state.pagesPerSheet = std::max(1, session.job().pagesPerSheet());
  for (const CommonSetting setting :
       {CommonSetting::PaperSize, CommonSetting::PaperSource, CommonSetting::PaperType,
        CommonSetting::Sides, CommonSetting::Color, CommonSetting::Quality}) {
    state.settings << commonSetting(session, setting);
  }
  for (int place = 0; place < jobChoices; ++place) {
    state.settings << jobChoice(session, static_cast<JobChoice>(place));
  }
  for (const Setting &setting : furtherSettings(session)) state.settings << setting;
  state.customPaper = customPaperOf(session, state.settings.first());
  return state;
}

}  // namespace orvek
