// SPDX-License-Identifier: Apache-2.0
// Marks over libcups' own calls.

#include "host/session/Marks.h"

#include <cups/cups.h>

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

// Walked before anything is looked up: a look-up moves the position that the walk goes on from.
QList<ppd_option_t *> allOptions(ppd_file_t *ppd) {
  QList<ppd_option_t *> options;
  for (ppd_option_t *option = ppdFirstOption(ppd); option != nullptr; option = ppdNextOption(ppd)) {
    options.append(option);
  }
  return options;
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
  std::vector<char> m_sizes;
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

QList<OptionChoice> Marks::meaningOf(const QList<OptionChoice> &jobOptions) const {
  QList<OptionChoice> meaning;
  if (m_ppd == nullptr || jobOptions.isEmpty()) return meaning;
  {
    const MarksSetAside aside(m_ppd);
    markAsAJobDoes(m_ppd, jobOptions);
    for (const ppd_option_t *option : allOptions(m_ppd)) {
      const ppd_choice_t *choice = findMarked(m_ppd, option->keyword);
      if (choice != nullptr) meaning.append({keyword(option), QString::fromUtf8(choice->choice)});
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
