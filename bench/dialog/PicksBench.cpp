// SPDX-License-Identifier: Apache-2.0
// Two picks that exclude each other, in turn: each makes the other's choice give way.

#include <cups/cups.h>

#include <array>

#include "bench/Measure.h"
#include "bench/dialog/Benches.h"
#include "host/session/PrintSession.h"

namespace bench {
namespace {

constexpr int works = 40;
constexpr int rounds = 9;
constexpr double goal = 1.3;

struct Pick {
  const char *option;
  const char *choice;
};
constexpr std::array<Pick, 2> excluding{{{"OVKFolding", "Saddle"}, {"OVKStapling", "Front"}}};

// What a program does that calls libcups itself: it asks before it marks, as libcups wants it.
void pickBare(ppd_file_t *ppd, const Pick &pick) {
  cups_option_t *found = nullptr;
  const int conflicts = cupsGetConflicts(ppd, pick.option, pick.choice, &found);
  cupsFreeOptions(conflicts, found);
  cups_option_t *resolution = nullptr;
  int count = 0;
  if (conflicts > 0 &&
      cupsResolveConflicts(ppd, pick.option, pick.choice, &count, &resolution) == 0) {
    std::abort();
  }
  ppdMarkOption(ppd, pick.option, pick.choice);
  for (int i = 0; i < count; ++i) ppdMarkOption(ppd, resolution[i].name, resolution[i].value);
  cupsFreeOptions(count, resolution);
}

void require(ppd_file_t *ppd, const Pick &pick, const Pick &givesWay) {
  if (ppdIsMarked(ppd, pick.option, pick.choice) == 0 ||
      ppdIsMarked(ppd, givesWay.option, givesWay.choice) != 0 || ppdConflicts(ppd) != 0) {
    std::abort();
  }
}

}  // namespace

void picks(const QString &folder) {
  for (const int options : {5, 5002}) {
    const QString path = ppdWithOptions(folder, options);
    orvek::SessionSetup setup;
    setup.printer = orvek::PrinterDescription::open(path).take();
    const auto session = orvek::PrintSession::begin(setup).take();
    const auto other = orvek::PrinterDescription::open(path).take();
    ppdMarkDefaults(other->lend());
    const auto inTurn = [](const auto &pick) {
      for (int i = 0; i < works; ++i) pick(excluding[i % 2]);
    };
    const Pair times = compare(
        rounds, [&] { inTurn([&](const Pick &pick) { session->pick(pick.option, pick.choice); }); },
        [&] { inTurn([&](const Pick &pick) { pickBare(other->lend(), pick); }); });
    require(session->origin().printer->lend(), excluding[1], excluding[0]);
    require(other->lend(), excluding[1], excluding[0]);
    line("pick, " + std::to_string(options) + " options", "libcups", times, works, "us", goal);
  }
}

}  // namespace bench
