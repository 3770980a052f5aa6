// SPDX-License-Identifier: Apache-2.0
// Marks over libcups' own calls.

#include "host/ppd/Marks.h"

#include <cups/cups.h>

#include <QSet>
#include <algorithm>
#include <iterator>
#include <vector>

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

// libcups offers no walk over the marks, but keeps them in this public list. Walking the options
// instead, and looking up the mark of each, takes longer than all else in a pick where a PPD has
// thousands of them.
QList<ppd_choice_t *> choicesIn(cups_array_t *marked) {
  QList<ppd_choice_t *> choices;
  choices.reserve(cupsArrayCount(marked));
  for (void *entry = cupsArrayFirst(marked); entry != nullptr; entry = cupsArrayNext(marked)) {
    choices.append(static_cast<ppd_choice_t *>(entry));
  }
  return choices;
}

QList<ppd_choice_t *> markedChoices(const ppd_file_t *ppd) {
  return ppd == nullptr ? QList<ppd_choice_t *>() : choicesIn(ppd->marked);
}

bool isCustom(const ppd_choice_t *choice) {
  return qstrcmp(choice->choice, customChoice) == 0;
}

QList<ppd_choice_t *> without(const QList<ppd_choice_t *> &choices,
                              const QList<ppd_choice_t *> &others) {
  const QSet<ppd_choice_t *> left(others.begin(), others.end());
  QList<ppd_choice_t *> rest;
  std::copy_if(choices.begin(), choices.end(), std::back_inserter(rest),
               [&](ppd_choice_t *choice) { return !left.contains(choice); });
  return rest;
}

// libcups' list of marks goes by keyword with regard to case, its list of options without.
QList<ppd_choice_t *> inOrder(QList<ppd_choice_t *> choices) {
  std::stable_sort(choices.begin(), choices.end(),
                   [](const ppd_choice_t *one, const ppd_choice_t *other) {
                     return qstricmp(one->option->keyword, other->option->keyword) < 0;
                   });
  return choices;
}

// Takes all marks away for its lifetime. libcups has no call for that, but keeps its marks in
// public places.
class MarksSetAside {
 public:
  explicit MarksSetAside(ppd_file_t *ppd) : m_ppd(ppd) {
    m_choices = takeAll();
    for (int i = 0; i < ppd->num_sizes; ++i) m_sizes.push_back(ppd->sizes[i].marked);
  }

  ~MarksSetAside() {
    takeAll();
    for (ppd_choice_t *choice : m_choices) {
      choice->marked = 1;
      cupsArrayAdd(m_ppd->marked, choice);
    }
    for (int i = 0; i < m_ppd->num_sizes; ++i) m_ppd->sizes[i].marked = m_sizes[std::size_t(i)];
  }

  MarksSetAside(const MarksSetAside &) = delete;
  MarksSetAside &operator=(const MarksSetAside &) = delete;

 private:
  std::vector<ppd_choice_t *> takeAll() {
    std::vector<ppd_choice_t *> taken;
    while (void *first = cupsArrayFirst(m_ppd->marked)) {
      taken.push_back(static_cast<ppd_choice_t *>(first));
      taken.back()->marked = 0;
      cupsArrayRemove(m_ppd->marked, first);
    }
    return taken;
  }

  ppd_file_t *m_ppd;
  std::vector<ppd_choice_t *> m_choices;
  std::vector<int> m_sizes;
};

// Marks as a filter does that is given these options.
void markAsAJobDoes(ppd_file_t *ppd, const QList<OptionChoice> &jobOptions) {
  cups_option_t *options = nullptr;
  int count = 0;
  for (const OptionChoice &option : jobOptions) {
    count = cupsAddOption(option.option.toUtf8().constData(), option.choice.toUtf8().constData(),
                          count, &options);
  }
  cupsMarkOptions(ppd, count, options);
  cupsFreeOptions(count, options);
}

bool isCustomValue(const QString &value) {
  return value.startsWith(QLatin1String("Custom."), Qt::CaseInsensitive) || value.startsWith(u'{');
}

// What the job's options give an option's custom choice: by its keyword, or among the parts of a
// word.
QString customValueIn(const QList<OptionChoice> &jobOptions, const QString &option) {
  QString ofAWord;
  for (const OptionChoice &asked : jobOptions) {
    if (asked.option.compare(option, Qt::CaseInsensitive) == 0) return asked.choice;
    for (const QString &part : asked.choice.split(u',')) {
      if (isCustomValue(part)) ofAWord = part;
    }
  }
  return ofAWord;
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
  // libcups would mark it beside the others. A job can say one choice only (of a list libcups marks
  // none), so more than one would be marked here and never be printed.
  ppd_choice_t *other = findMarked(m_ppd, wanted->option.toUtf8().constData());
  if (other != nullptr && other->option->ui == PPD_UI_PICKMANY) unmark(other);
  ppdMarkOption(m_ppd, wanted->option.toUtf8().constData(), wanted->choice.toUtf8().constData());
  const ppd_choice_t *now = findMarked(m_ppd, wanted->option.toUtf8().constData());
  if (now != nullptr && isCustom(now)) {
    m_customValues.insert(wanted->option, wanted->choice);
  } else {
    m_customValues.remove(wanted->option);
  }
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

QList<OptionChoice> Marks::meaningOf(const QList<OptionChoice> &jobOptions) const {
  QList<OptionChoice> meaning;
  if (m_ppd == nullptr || jobOptions.isEmpty()) return meaning;
  {
    const MarksSetAside aside(m_ppd);
    markAsAJobDoes(m_ppd, jobOptions);
    for (const ppd_choice_t *choice : inOrder(markedChoices(m_ppd))) {
      meaning.append({keyword(choice->option), QString::fromUtf8(choice->choice)});
    }
  }
  for (OptionChoice &meant : meaning) {
    if (meant.choice != QLatin1String(customChoice)) continue;
    // The value that stood there went with the word's.
    const QString standing = marked(meant.option);
    if (isCustomValue(standing)) {
      ppdMarkOption(m_ppd, meant.option.toUtf8().constData(), standing.toUtf8().constData());
    }
    const QString value = customValueIn(jobOptions, meant.option);
    if (!value.isNull()) meant.choice = value;
  }
  return meaning;
}

QList<OptionChoice> Marks::named(const QList<ppd_choice_t *> &choices) const {
  QList<OptionChoice> list;
  list.reserve(choices.size());
  for (const ppd_choice_t *choice : inOrder(choices)) {
    list.append({keyword(choice->option), choiceName(choice)});
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
  const ppd_option_t *found = findOption(m_ppd, option);
  return found != nullptr && found->conflicted != 0;
}

QList<OptionChoice> Marks::differingFromDefaults() const {
  QList<ppd_choice_t *> choices = markedChoices(m_ppd);
  choices.removeIf([this](const ppd_choice_t *choice) {
    const char *standard = choice->option->defchoice;
    return !isCustom(choice)
               ? qstricmp(choice->choice, standard) == 0
               : choiceName(choice).compare(QString::fromUtf8(standard), Qt::CaseInsensitive) == 0;
  });
  return named(choices);
}

// libcups has no call that takes a mark away either.
void Marks::unmark(ppd_choice_t *choice) {
  choice->marked = 0;
  cupsArrayRemove(m_ppd->marked, choice);
}

QList<ppd_choice_t *> MarksSnapshot::choices() const {
  return choicesIn(m_marked.get());
}

bool MarksSnapshot::operator==(const MarksSnapshot &other) const {
  return cupsArrayCount(m_marked.get()) == cupsArrayCount(other.m_marked.get()) &&
         m_customValues == other.m_customValues && choices() == other.choices();
}

MarksSnapshot Marks::snapshot() const {
  MarksSnapshot snapshot;
  if (m_ppd == nullptr) return snapshot;
  snapshot.m_marked = {cupsArrayDup(m_ppd->marked), cupsArrayDelete};
  snapshot.m_customValues = m_customValues;
  return snapshot;
}

void Marks::restore(const MarksSnapshot &snapshot) {
  for (const ppd_choice_t *choice : snapshot.choices()) {
    const QString option = keyword(choice->option);
    const QString custom = snapshot.m_customValues.value(option);
    if (choice->marked != 0 && m_customValues.value(option) == custom) continue;
    mark(option, custom.isNull() ? QString::fromUtf8(choice->choice) : custom);
  }
  // Last, since marking one option can take the mark of another.
  for (ppd_choice_t *choice : without(markedChoices(m_ppd), snapshot.choices())) unmark(choice);
}

QStringList Marks::differingFrom(const MarksSnapshot &snapshot) const {
  QStringList options;
  for (const QList<ppd_choice_t *> &choices : {without(markedChoices(m_ppd), snapshot.choices()),
                                               without(snapshot.choices(), markedChoices(m_ppd))}) {
    for (const ppd_choice_t *choice : choices) options << keyword(choice->option);
  }
  for (auto custom = m_customValues.begin(); custom != m_customValues.end(); ++custom) {
    if (snapshot.m_customValues.value(custom.key()) != custom.value()) options << custom.key();
  }
  options.removeDuplicates();
  options.sort(Qt::CaseInsensitive);
  return options;
}

}  // namespace orvek
