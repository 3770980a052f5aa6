// SPDX-License-Identifier: Apache-2.0
// Looks at the constraints of one option where libcups looks at all.

#include "host/ppd/PlainResolution.h"

#include <algorithm>
#include <utility>

#include "platform/printing/PPD.h"

namespace orvek {
namespace {

/// As many as libcups tries.
constexpr int mostTries = 100;

ppd_choice_t *choiceOf(const ppd_option_t *option, const char *name) {
  return ppdFindChoice(const_cast<ppd_option_t *>(option), name);
}

}  // namespace

PlainResolution::PlainResolution(const PlainConstraints &constraints, const ppd_choice_s *pick)
    : m_constraints(constraints),
      m_pick(constraints.m_numbers.value(pick->option)),
      m_changes(constraints.m_options.size(), nullptr) {
  for (const ppd_option_t *option : constraints.m_options) {
    // Of choices of one name a constraint has the first.
    const ppd_choice_t *marked = ppdFindMarkedChoice(constraints.m_ppd, option->keyword);
    m_choices.push_back(marked == nullptr ? nullptr : choiceOf(option, marked->choice));
  }
  m_choices[m_pick] = pick;
  m_changes[m_pick] = pick->choice;
}

bool PlainResolution::isViolated(int constraint) const {
  const auto &sides = m_constraints.m_constraints[constraint];
  return std::all_of(sides.begin(), sides.end(),
                     [this](const Side &side) { return m_choices[side.option] == side.choice; });
}

// Of those that name the option.
bool PlainResolution::isAnyViolated(int option) const {
  const auto &naming = m_constraints.m_naming[option];
  return std::any_of(naming.begin(), naming.end(),
                     [this](int constraint) { return isViolated(constraint); });
}

bool PlainResolution::mayBecome(int option, const char *choice) {
  const ppd_choice_t *before =
      std::exchange(m_choices[option], choiceOf(m_constraints.m_options[option], choice));
  if (isAnyViolated(option)) {
    m_choices[option] = before;
    return false;
  }
  m_changes[option] = choice;
  return true;
}

bool PlainResolution::change(const Side &side) {
  if (side.option == m_pick) return false;
  const ppd_option_t *option = m_constraints.m_options[side.option];
  const ppd_choice_t *now = m_choices[side.option];
  const QByteArray value = now == nullptr ? QByteArray() : QByteArray(now->choice);
  const bool isStandard = qstricmp(value.constData(), option->defchoice) == 0;
  if (!isStandard && mayBecome(side.option, option->defchoice)) return true;
  for (int i = 0; i < option->num_choices; ++i) {
    const char *choice = option->choices[i].choice;
    const bool isOther =
        qstricmp(value.constData(), choice) != 0 && qstricmp(option->defchoice, choice) != 0;
    if (isOther && mayBecome(side.option, choice)) return true;
  }
  return false;
}

bool PlainResolution::changeOne(const std::vector<int> &constraints, std::size_t first) {
  for (std::size_t i = first; i < constraints.size(); ++i) {
    if (!isViolated(constraints[i])) continue;
    for (const Side &side : m_constraints.m_constraints[constraints[i]]) {
      if (change(side)) return true;
    }
  }
  return false;
}

std::vector<int> PlainResolution::violated() const {
  std::vector<int> constraints;
  const int count = int(m_constraints.m_constraints.size());
  for (int i = 0; i < count; ++i) {
    if (isViolated(i)) constraints.push_back(i);
  }
  return constraints;
}

// No change is made that violates a constraint, so none comes to those that are violated at first.
std::optional<QList<OptionChoice>> PlainResolution::found() {
  const std::vector<int> constraints = violated();
  std::size_t first = 0;
  const auto skipMet = [&] {
    while (first < constraints.size() && !isViolated(constraints[first])) ++first;
  };
  int tries = 0;
  for (skipMet(); tries < mostTries && first < constraints.size(); skipMet()) {
    ++tries;
    if (!changeOne(constraints, first)) return std::nullopt;
  }
  if (tries >= mostTries) return std::nullopt;
  return inOrder(m_changes);
}

QList<OptionChoice> PlainResolution::conflicts() const {
  std::vector<const char *> others(m_choices.size(), nullptr);
  for (const int constraint : violated()) {
    for (const Side &side : m_constraints.m_constraints[constraint]) {
      if (side.option != m_pick) others[side.option] = side.choice->choice;
    }
  }
  return inOrder(others);
}

// By option, without those that have none; in libcups' order.
QList<OptionChoice> PlainResolution::inOrder(const std::vector<const char *> &choices) const {
  std::vector<std::size_t> numbers;
  for (std::size_t i = 0; i < choices.size(); ++i) {
    if (choices[i] != nullptr) numbers.push_back(i);
  }
  const auto keyword = [this](std::size_t number) {
    return m_constraints.m_options[number]->keyword;
  };
  std::sort(numbers.begin(), numbers.end(), [&](std::size_t one, std::size_t other) {
    return qstricmp(keyword(one), keyword(other)) < 0;
  });
  QList<OptionChoice> list;
  list.reserve(qsizetype(numbers.size()));
  for (const std::size_t number : numbers) {
    list.append({QString::fromUtf8(keyword(number)), QString::fromUtf8(choices[number])});
  }
  return list;
}

}  // namespace orvek
