// SPDX-License-Identifier: Apache-2.0
// Has libcups mark a job's options, and looks which marks they made.

#include "host/ppd/CustomChoice.h"
#include "host/ppd/MarkedChoices.h"
#include "host/ppd/MarksTrial.h"

namespace orvek {
namespace {

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

// What the job's options give an option's custom choice: by its keyword, or among the parts of a
// word.
QString customValueIn(const QList<OptionChoice> &jobOptions, const QString &option) {
  QString ofAWord;
  for (const OptionChoice &asked : jobOptions) {
    if (sameKeyword(asked.option, option)) return asked.choice;
    for (const QString &part : asked.choice.split(u',')) {
      if (hasCustomValues(part)) ofAWord = part;
    }
  }
  return ofAWord;
}

}  // namespace

QList<OptionChoice> Marks::meaningOf(const QList<OptionChoice> &jobOptions) {
  QList<OptionChoice> meaning;
  if (m_ppd == nullptr || jobOptions.isEmpty()) return meaning;
  const MarksTrial trial(*this);
  takeAllMarks();
  markAsAJobDoes(m_ppd, jobOptions);
  for (const ppd_choice_t *choice : inOrder(markedChoices(m_ppd))) {
    const QString option = optionOf(choice);
    const QString value = isCustom(choice) ? customValueIn(jobOptions, option) : QString();
    meaning.append({option, value.isNull() ? QString::fromUtf8(choice->choice) : value});
  }
  return meaning;
}

}  // namespace orvek
