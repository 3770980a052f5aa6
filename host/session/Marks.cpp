// SPDX-License-Identifier: Apache-2.0
// Marks over libcups' own calls.

#include "host/session/Marks.h"

namespace orvek {
namespace {

constexpr const char *customChoice = "Custom";

ppd_option_t *findOption(ppd_file_t *ppd, const QString &option) {
  return ppdFindOption(ppd, option.toUtf8().constData());
}

ppd_choice_t *findMarked(ppd_file_t *ppd, const char *option) {
  return ppdFindMarkedChoice(ppd, option);
}

QString keyword(const ppd_option_t *option) {
  return QString::fromUtf8(option->keyword);
}

// Walked before anything is looked up: a look-up moves the position that the walk goes on from.
QList<ppd_option_t *> allOptions(ppd_file_t *ppd) {
  QList<ppd_option_t *> options;
  for (ppd_option_t *option = ppdFirstOption(ppd); option != nullptr; option = ppdNextOption(ppd)) {
    options.append(option);
  }
  return options;
}

}  // namespace

void Marks::markDefaults() {
  m_customValues.clear();
  ppdMarkDefaults(m_ppd);
}

std::optional<OptionChoice> Marks::spelled(const QString &option, const QString &choice) const {
  ppd_option_t *found = findOption(m_ppd, option);
  if (found == nullptr || choice.isEmpty()) return std::nullopt;
  const ppd_choice_t *foundChoice = ppdFindChoice(found, choice.toUtf8().constData());
  if (foundChoice == nullptr) return std::nullopt;
  const QString name = QString::fromUtf8(foundChoice->choice);
  // A custom choice answers to every custom value; the value is what counts.
  const bool customValue =
      name == QLatin1String(customChoice) && choice.compare(name, Qt::CaseInsensitive) != 0;
  return OptionChoice{keyword(found), customValue ? choice : name};
}

bool Marks::mark(const QString &option, const QString &choice) {
  const std::optional<OptionChoice> wanted = spelled(option, choice);
  if (!wanted) return false;
  ppdMarkOption(m_ppd, wanted->option.toUtf8().constData(), wanted->choice.toUtf8().constData());
  m_customValues.insert(wanted->option, wanted->choice);
  return true;
}

QString Marks::choiceName(const ppd_choice_t *choice) const {
  const QString name = QString::fromUtf8(choice->choice);
  if (name != QLatin1String(customChoice)) return name;
  return m_customValues.value(keyword(choice->option), name);
}

QString Marks::marked(const QString &option) const {
  const ppd_choice_t *choice = findMarked(m_ppd, option.toUtf8().constData());
  return choice == nullptr ? QString() : choiceName(choice);
}

MarksSnapshot Marks::snapshot() const {
  MarksSnapshot all;
  for (const ppd_option_t *option : allOptions(m_ppd)) {
    const ppd_choice_t *choice = findMarked(m_ppd, option->keyword);
    all.append({keyword(option), choice == nullptr ? QString() : choiceName(choice)});
  }
  return all;
}

QList<OptionChoice> Marks::all() const {
  QList<OptionChoice> marked = snapshot();
  marked.removeIf([](const OptionChoice &mark) { return mark.choice.isNull(); });
  return marked;
}

QList<OptionChoice> Marks::conflicts() const {
  ppdConflicts(m_ppd);
  QList<OptionChoice> conflicting = snapshot();
  conflicting.removeIf(
      [this](const OptionChoice &mark) { return findOption(m_ppd, mark.option)->conflicted == 0; });
  return conflicting;
}

QList<OptionChoice> Marks::differingFromDefaults() const {
  QList<OptionChoice> differing = all();
  differing.removeIf([this](const OptionChoice &mark) {
    const QString standard = QString::fromUtf8(findOption(m_ppd, mark.option)->defchoice);
    return mark.choice.compare(standard, Qt::CaseInsensitive) == 0;
  });
  return differing;
}

void Marks::unmark(const QString &option) {
  // libcups has no call that takes a mark away, but keeps its marks in this public list.
  while (ppd_choice_t *choice = findMarked(m_ppd, option.toUtf8().constData())) {
    choice->marked = 0;
    if (cupsArrayRemove(m_ppd->marked, choice) == 0) return;
  }
}

void Marks::restore(const MarksSnapshot &snapshot) {
  for (const OptionChoice &mark : snapshot) {
    if (!mark.choice.isNull() && marked(mark.option) != mark.choice)
      this->mark(mark.option, mark.choice);
  }
  // Last, since marking one option can take the mark of another.
  for (const OptionChoice &mark : snapshot) {
    if (mark.choice.isNull()) unmark(mark.option);
  }
}

}  // namespace orvek
