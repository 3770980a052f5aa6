// SPDX-License-Identifier: Apache-2.0
// Reads constraints in libcups' order, and leaves out what it leaves out.

#include "host/ppd/PlainConstraints.h"

#include <QByteArrayList>
#include <utility>

#include "host/ppd/CustomChoice.h"
#include "host/ppd/PlainResolution.h"
#include "host/ppd/PrinterDescription.h"
#include "platform/printing/PPD.h"

namespace orvek {
namespace {

// Paper is what several options together say, and collation goes without saying.
bool isSpecial(const char *option) {
  return isAnyOf(option, {"PageSize", "PageRegion", "Collate"}) ||
         qstrnicmp(option, "AP_FIRSTPAGE_", qstrlen("AP_FIRSTPAGE_")) == 0;
}

bool saysTheSameBackwards(const ppd_const_t &one, const ppd_const_t &other) {
  return qstricmp(one.option1, other.option2) == 0 && qstricmp(one.choice1, other.choice2) == 0 &&
         qstricmp(one.option2, other.option1) == 0 && qstricmp(one.choice2, other.choice1) == 0;
}

}  // namespace

PlainConstraints::PlainConstraints(const PrinterDescription &printer)
    : m_printer(&printer), m_ppd(printer.lend()) {}

std::optional<PlainConstraints> PlainConstraints::of(const PrinterDescription &printer) {
  if (printer.lend() == nullptr) return std::nullopt;
  PlainConstraints constraints(printer);
  if (!constraints.readPairs() || !constraints.readLists()) return std::nullopt;
  return constraints;
}

bool PlainConstraints::addSide(const char *option, const char *choice, Constraint *constraint) {
  ppd_option_t *found = ppdFindOption(m_ppd, option);
  if (found == nullptr || isSpecial(option)) return false;
  if (m_printer->isEquipment(QString::fromUtf8(found->keyword))) return false;
  if (found->ui == PPD_UI_PICKMANY) return false;
  const ppd_choice_t *named = ppdFindChoice(found, choice);
  const bool takesValues = ppdFindChoice(found, CustomChoice::keyword.data()) != nullptr;
  if (named == nullptr || takesValues) return false;
  const auto known = m_numbers.constFind(found);
  const int number = known != m_numbers.constEnd() ? *known : int(m_options.size());
  if (known == m_numbers.constEnd()) {
    m_numbers.insert(found, number);
    m_options.push_back(found);
    m_naming.emplace_back();
  }
  constraint->push_back({number, named});
  return true;
}

void PlainConstraints::add(Constraint constraint) {
  const int number = int(m_constraints.size());
  for (const Side &side : constraint) m_naming[side.option].push_back(number);
  m_constraints.push_back(std::move(constraint));
}

bool PlainConstraints::readPairs() {
  for (int i = 0; i < m_ppd->num_consts; ++i) {
    const ppd_const_t &pair = m_ppd->consts[i];
    // A PPD says each both ways; of two in a row libcups takes the second.
    if (i + 1 < m_ppd->num_consts && saysTheSameBackwards(pair, m_ppd->consts[i + 1])) continue;
    Constraint constraint;
    if (!addSide(pair.option1, pair.choice1, &constraint)) return false;
    if (!addSide(pair.option2, pair.choice2, &constraint)) return false;
    add(std::move(constraint));
  }
  return true;
}

bool PlainConstraints::readLists() {
  const char *keyword = "cupsUIConstraints";
  for (const ppd_attr_t *list = ppdFindAttr(m_ppd, keyword, nullptr); list != nullptr;
       list = ppdFindNextAttr(m_ppd, keyword, nullptr)) {
    const QByteArrayList words = QByteArray(list->value).simplified().split(' ');
    if (list->spec[0] != '\0' || words.size() % 2 != 0) return false;
    Constraint constraint;
    for (qsizetype i = 0; i < words.size(); i += 2) {
      if (!words[i].startsWith('*') || words[i + 1].contains('*')) return false;
      if (!addSide(words[i].constData() + 1, words[i + 1].constData(), &constraint)) return false;
    }
    add(std::move(constraint));
  }
  return true;
}

const ppd_choice_s *PlainConstraints::pickFor(const OptionChoice &pick) const {
  ppd_option_t *option = ppdFindOption(m_ppd, pick.option.toUtf8().constData());
  if (option == nullptr || !m_numbers.contains(option)) return nullptr;
  return ppdFindChoice(option, pick.choice.toUtf8().constData());
}

bool PlainConstraints::isInConflict(const ppd_choice_s *pick) const {
  return PlainResolution(*this, pick).isPickForbidden();
}

QList<OptionChoice> PlainConstraints::conflictsOf(const ppd_choice_s *pick) const {
  return PlainResolution(*this, pick).conflicts();
}

std::optional<QList<OptionChoice>> PlainConstraints::resolutionOf(const ppd_choice_s *pick) const {
  return PlainResolution(*this, pick).found();
}

}  // namespace orvek
