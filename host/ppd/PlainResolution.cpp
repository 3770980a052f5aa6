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

bool PlainResolution::changeOne() {
  const int count = int(m_constraints.m_constraints.size());
  for (int i = 0; i < count; ++i) {
    if (!isViolated(i)) continue;
    for (const Side &side : m_constraints.m_constraints[i]) {
      if (change(side)) return true;
    }
  }
  return false;
}

std::optional<QList<OptionChoice>> PlainResolution::found() {
  const int count = int(m_constraints.m_constraints.size());
  const auto anyViolated = [&] {
    for (int i = 0; i < count; ++i) {
      if (isViolated(i)) return true;
    }
    return false;
  };
  int tries = 0;
  while (tries < mostTries && anyViolated()) {
    ++tries;
    if (!changeOne()) return std::nullopt;
  }
  if (tries >= mostTries) return std::nullopt;
  QList<OptionChoice> changes;
  for (std::size_t i = 0; i < m_changes.size(); ++i) {
    if (m_changes[i] == nullptr) continue;
    changes.append(
        {QString::fromUtf8(m_constraints.m_options[i]->keyword), QString::fromUtf8(m_changes[i])});
  }
  // In libcups' order.
  std::sort(changes.begin(), changes.end(), [](const OptionChoice &one, const OptionChoice &other) {
    return qstricmp(one.option.toUtf8().constData(), other.option.toUtf8().constData()) < 0;
  });
  return changes;
}

}  // namespace orvek
