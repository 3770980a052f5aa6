// SPDX-License-Identifier: Apache-2.0
// Reads libcups' record of an option.

#include "host/ppd/PrinterOption.h"

#include "host/ppd/CustomChoice.h"
#include "host/ppd/Keyword.h"
#include "platform/printing/PPD.h"

namespace orvek {
namespace {

PrinterChoice choiceOf(const ppd_choice_t &choice) {
  return {QString::fromUtf8(choice.choice),
          QString::fromUtf8(choice.text[0] != '\0' ? choice.text : choice.choice)};
}

}  // namespace

QString PrinterOption::keyword() const {
  return m_option == nullptr ? QString() : QString::fromUtf8(m_option->keyword);
}

QString PrinterOption::text() const {
  if (m_option == nullptr) return {};
  return QString::fromUtf8(m_option->text[0] != '\0' ? m_option->text : m_option->keyword);
}

QString PrinterOption::defaultChoice() const {
  return m_option == nullptr ? QString() : QString::fromUtf8(m_option->defchoice);
}

OptionKind PrinterOption::kind() const {
  if (m_option == nullptr || m_option->ui == PPD_UI_PICKONE) return OptionKind::PickOne;
  return m_option->ui == PPD_UI_BOOLEAN ? OptionKind::Boolean : OptionKind::PickMany;
}

bool PrinterOption::isSwitch() const {
  constexpr int onAndOff = 2;
  return kind() == OptionKind::Boolean && m_option->num_choices == onAndOff &&
         ppdFindChoice(m_option, "True") != nullptr && ppdFindChoice(m_option, "False") != nullptr;
}

QList<PrinterChoice> PrinterOption::choices() const {
  QList<PrinterChoice> all;
  if (m_option == nullptr) return all;
  all.reserve(m_option->num_choices);
  for (int i = 0; i < m_option->num_choices; ++i) all.append(choiceOf(m_option->choices[i]));
  return all;
}

std::optional<PrinterChoice> PrinterOption::choice(const QString &choice) const {
  if (m_option == nullptr || choice.isEmpty()) return std::nullopt;
  const ppd_choice_t *found = ppdFindChoice(m_option, choice.toUtf8().constData());
  return found == nullptr ? std::nullopt : std::optional(choiceOf(*found));
}

QString PrinterOption::spelled(const QString &choice) const {
  if (m_option == nullptr || choice.isEmpty()) return {};
  const ppd_choice_t *found = ppdFindChoice(m_option, choice.toUtf8().constData());
  if (found == nullptr) return {};
  const QString name = QString::fromUtf8(found->choice);
  // A custom choice answers to every custom value; the value is what counts.
  return name == CustomChoice::keyword && !sameKeyword(choice, name) ? choice : name;
}

}  // namespace orvek
