// SPDX-License-Identifier: Apache-2.0
// Reads libcups' record of an option.

#include "host/ppd/PrinterOption.h"

#include "host/ppd/CustomChoice.h"
#include "host/ppd/Keyword.h"
#include "host/ppd/LocalTexts.h"
#include "host/ppd/StandardNames.h"
#include "platform/printing/PPD.h"

namespace orvek {
namespace {

QString ownText(const char *text, const char *keyword) {
  return QString::fromUtf8(text[0] != '\0' ? text : keyword);
}

// Our names are of use where they are in the user's language and the PPD's text is not.
bool speakBetter(const LocalTexts &texts) {
  return texts.isEnglish() || standardNamesAreTranslated();
}

// What libcups puts where a PPD has no text.
bool isStandIn(const QString &text, const QString &keyword) {
  return text == keyword ||
         isAnyOf(text, {"Media Size", "Media Source", "Media Type", "Output Mode"});
}

QString nameOr(const QString &name, const QString &text) {
  return name.isNull() ? text : name;
}

}  // namespace

QString PrinterOption::keyword() const {
  return m_option == nullptr ? QString() : QString::fromUtf8(m_option->keyword);
}

QString PrinterOption::textInPpd() const {
  return m_option == nullptr ? QString() : ownText(m_option->text, m_option->keyword);
}

QString PrinterOption::text() const {
  const QString own = textInPpd();
  if (!isStandIn(own, keyword()) &&
      (m_texts->hasOption(m_option->keyword) || !speakBetter(*m_texts))) {
    return own;
  }
  return nameOr(standardOptionName(keyword()), own);
}

PrinterChoice PrinterOption::choiceOf(const ppd_choice_s &choice) const {
  const QString keyword = QString::fromUtf8(choice.choice);
  const QString own = ownText(choice.text, choice.choice);
  // libcups puts "Yes" and "No" where a switch has no texts.
  const bool isYesOrNo = kind() == OptionKind::Boolean && isAnyOf(own, {"Yes", "No"});
  if (own == keyword || isYesOrNo) {
    const QString name = standardChoiceName(this->keyword(), keyword);
    const QString onOrOff = kind() == OptionKind::Boolean ? switchName(keyword) : QString();
    return {keyword, nameOr(name, nameOr(onOrOff, own)), own};
  }
  if (m_texts->hasChoice(m_option->keyword, choice.choice) || !speakBetter(*m_texts)) {
    return {keyword, own, own};
  }
  return {keyword, nameOr(standardChoiceName(this->keyword(), keyword), own), own};
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
