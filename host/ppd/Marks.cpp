// SPDX-License-Identifier: Apache-2.0
// Marking and asking over libcups' own calls.

#include "host/ppd/Marks.h"

#include "host/ppd/CustomChoice.h"
#include "host/ppd/MarkedChoices.h"

namespace orvek {

Marks::Marks(const PrinterDescription &printer) : m_printer(printer), m_ppd(printer.lend()) {}

void Marks::markDefaults() {
  m_customValues.clear();
  ppdMarkDefaults(m_ppd);
}

std::optional<OptionChoice> Marks::spelled(const QString &option, const QString &choice) const {
  return m_printer.spelled(option, choice);
}

bool Marks::mark(const QString &option, const QString &choice) {
  const std::optional<OptionChoice> wanted = spelled(option, choice);
  if (!wanted) return false;
  const QByteArray keyword = wanted->option.toUtf8();
  const QByteArray name = wanted->choice.toUtf8();
  ppd_option_t *found = ppdFindOption(m_ppd, keyword.constData());
  ppd_choice_t *other = ppdFindMarkedChoice(m_ppd, keyword.constData());
  if (isMarkedAlone(found)) {
    moveMark(m_ppd, other, ppdFindChoice(found, name.constData()));
    return true;
  }
  // libcups would mark it beside the others. A job can say one choice only (of a list libcups marks
  // none), so more than one would be marked here and never be printed.
  if (other != nullptr && found->ui == PPD_UI_PICKMANY) takeMark(m_ppd, other);
  ppdMarkOption(m_ppd, keyword.constData(), name.constData());
  const ppd_choice_t *now = ppdFindMarkedChoice(m_ppd, keyword.constData());
  if (now != nullptr && isCustom(now)) {
    m_customValues.insert(wanted->option, wanted->choice);
  } else {
    m_customValues.remove(wanted->option);
  }
  return true;
}

QString Marks::choiceName(const ppd_choice_s *choice) const {
  const QString name = QString::fromUtf8(choice->choice);
  return isCustom(choice) ? m_customValues.value(optionOf(choice), name) : name;
}

QString Marks::marked(const QString &option) const {
  const ppd_choice_t *choice = ppdFindMarkedChoice(m_ppd, option.toUtf8().constData());
  return choice == nullptr ? QString() : choiceName(choice);
}

QList<OptionChoice> Marks::named(const QList<ppd_choice_s *> &choices) const {
  QList<OptionChoice> list;
  list.reserve(choices.size());
  for (const ppd_choice_t *choice : inOrder(choices)) {
    list.append({optionOf(choice), choiceName(choice)});
  }
  return list;
}

QList<OptionChoice> Marks::all() const {
  return named(markedChoices(m_ppd));
}

QList<OptionChoice> Marks::conflicts() const {
  ppdConflicts(m_ppd);
  QList<ppd_choice_t *> choices = markedChoices(m_ppd);
  choices.removeIf([](const ppd_choice_t *choice) { return choice->option->conflicted == 0; });
  return named(choices);
}

bool Marks::isInConflict(const QString &option) const {
  ppdConflicts(m_ppd);
  const ppd_option_t *found = ppdFindOption(m_ppd, option.toUtf8().constData());
  return found != nullptr && found->conflicted != 0;
}

QList<OptionChoice> Marks::differingFromDefaults() const {
  QList<ppd_choice_t *> choices = markedChoices(m_ppd);
  choices.removeIf([this](const ppd_choice_t *choice) {
    const char *standard = choice->option->defchoice;
    // Names that need no conversion first: a PPD may have thousands of options.
    return isCustom(choice) ? sameKeyword(choiceName(choice), standard)
                            : qstricmp(choice->choice, standard) == 0;
  });
  return named(choices);
}

}  // namespace orvek
