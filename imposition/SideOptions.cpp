// SPDX-License-Identifier: Apache-2.0
// Reads words, without regard to case.

#include "imposition/SideOptions.h"

#include <algorithm>

#include "imposition/BookletOptions.h"

namespace orvek::imposition {
namespace {

OwnBooklet readOwnBooklet(const std::string &value) {
  if (lowerCase(value) == "shuffle-only") return OwnBooklet::Order;
  return isOn(value) ? OwnBooklet::Sides : OwnBooklet::Off;
}

Parity readParity(const std::string &value) {
  const std::string word = lowerCase(value);
  if (word == "odd") return Parity::Odd;
  return word == "even" ? Parity::Even : Parity::All;
}

}  // namespace

bool isOn(const std::string &value) {
  const std::string word = lowerCase(value);
  return word == "true" || word == "on" || word == "yes";
}

void readSideOptions(const ValueOf &valueOf, FilterJob *job) {
  const auto word = [&](const char *name) { return valueOf(name).value_or(std::string()); };
  job->pagesPerSide = std::max(1, leadingInteger(word(numberUpOption)));
  job->order = lowerCase(word("number-up-layout"));
  job->position = readPosition(word("position"));
  job->booklet = readOwnBooklet(word("booklet"));
  job->signature = leadingInteger(word("booklet-signature"));
  job->sides.parity = readParity(word("page-set"));
}

}  // namespace orvek::imposition
