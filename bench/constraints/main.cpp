// SPDX-License-Identifier: Apache-2.0
// Sixty options that exclude each other, all of them on: one pick, and what a page says of every
// choice. Against libcups, which is asked for a way out of each.

#include <cups/cups.h>

#include <QCoreApplication>

#include "bench/Measure.h"
#include "host/session/Availability.h"
#include "platform/printing/PPD.h"
#include "tests/support/ExclusivePpd.h"

namespace {

using namespace orvek;

constexpr int options = 60;
constexpr int rounds = 3;
constexpr double goal = 0.05;

QString optionName(int number) {
  return QStringLiteral("Option%1").arg(number);
}

void resolveBare(ppd_file_t *ppd, int option, const char *choice) {
  cups_option_t *resolution = nullptr;
  int count = 0;
  const QByteArray name = optionName(option).toLatin1();
  if (cupsResolveConflicts(ppd, name.constData(), choice, &count, &resolution) == 0) std::abort();
  cupsFreeOptions(count, resolution);
}

void compareForm(const std::string &name, test::ExclusivePpd::Form form) {
  const test::ExclusivePpd ppd(options, form, "On");
  SessionSetup setup;
  setup.printer = PrinterDescription::open(ppd.path()).take();
  const auto session = PrintSession::begin(setup).take();
  ppd_file_t *bare = setup.printer->lend();
  const auto one = bench::compare(
      rounds,
      [&] {
        tryPick(session->marksToTry(), {optionName(7), QStringLiteral("On")});
      },
      [&] { resolveBare(bare, 7, "On"); });
  bench::line("pick, " + name, "libcups", one, 1, "ms", goal);
  const auto page = bench::compare(
      rounds,
      [&] {
        Availability availability(*session);
        for (int i = 0; i < options; ++i) {
          for (const char *choice : {"On", "Off"}) {
            availability.of(optionName(i), QLatin1String(choice));
          }
        }
      },
      [&] {
        for (int i = 0; i < options; ++i) {
          for (const char *choice : {"On", "Off"}) resolveBare(bare, i, choice);
        }
      });
  bench::line("all choices, " + name, "libcups", page, 1, "ms", goal);
}

}  // namespace

int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  bench::head();
  compareForm("pairs", test::ExclusivePpd::Form::UIConstraints);
  compareForm("lists", test::ExclusivePpd::Form::CupsUIConstraints);
  return 0;
}
