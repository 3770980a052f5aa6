// SPDX-License-Identifier: Apache-2.0
// Remembers marks and goes back to them.

#include "host/ppd/MarksSnapshot.h"

#include "host/ppd/MarkedChoices.h"
#include "host/ppd/Marks.h"

namespace orvek {
namespace {

cups_array_t *arrayOf(const std::shared_ptr<void> &marked) {
  return static_cast<cups_array_t *>(marked.get());
}

QList<ppd_choice_t *> choicesOf(const std::shared_ptr<void> &marked) {
  return choicesIn(arrayOf(marked));
}

void deleteArray(void *array) {
  cupsArrayDelete(static_cast<cups_array_t *>(array));
}

}  // namespace

bool MarksSnapshot::operator==(const MarksSnapshot &other) const {
  return cupsArrayCount(arrayOf(m_marked)) == cupsArrayCount(arrayOf(other.m_marked)) &&
         m_customValues == other.m_customValues && choicesOf(m_marked) == choicesOf(other.m_marked);
}

MarksSnapshot Marks::snapshot() const {
  MarksSnapshot snapshot;
  if (m_ppd == nullptr) return snapshot;
  snapshot.m_marked = std::shared_ptr<void>(cupsArrayDup(m_ppd->marked), deleteArray);
  snapshot.m_customValues = m_customValues;
  snapshot.m_markedSizes.reserve(m_ppd->num_sizes);
  for (int i = 0; i < m_ppd->num_sizes; ++i) {
    snapshot.m_markedSizes.append(static_cast<char>(m_ppd->sizes[i].marked));
  }
  return snapshot;
}

// The whole list at once: by libcups' calls, marking one option can take the mark of another, and
// each looks up both by name.
void Marks::restore(const MarksSnapshot &snapshot) {
  if (m_ppd == nullptr || !snapshot.m_marked) return;
  takeAllMarks();
  cupsArrayDelete(m_ppd->marked);
  m_ppd->marked = cupsArrayDup(arrayOf(snapshot.m_marked));
  for (ppd_choice_t *choice : markedChoices(m_ppd)) choice->marked = 1;
  m_customValues = snapshot.m_customValues;
  markCustomValuesAgain();
  for (int i = 0; i < m_ppd->num_sizes && i < snapshot.m_markedSizes.size(); ++i) {
    m_ppd->sizes[i].marked = snapshot.m_markedSizes[i] != 0 ? 1 : 0;
  }
}

// libcups keeps a custom choice's values apart from its mark, one set for an option.
void Marks::markCustomValuesAgain() {
  for (auto value = m_customValues.constBegin(); value != m_customValues.constEnd(); ++value) {
    const QByteArray option = value.key().toUtf8();
    ppd_choice_t *marked = ppdFindMarkedChoice(m_ppd, option.constData());
    if (marked == nullptr || !isCustom(marked)) continue;
    takeMark(m_ppd, marked);
    ppdMarkOption(m_ppd, option.constData(), value->toUtf8().constData());
  }
}

void Marks::takeAllMarks() {
  for (ppd_choice_t *choice : markedChoices(m_ppd)) choice->marked = 0;
  cupsArrayClear(m_ppd->marked);
}

QStringList Marks::differingFrom(const MarksSnapshot &snapshot) const {
  QStringList options;
  const QList<ppd_choice_t *> now = markedChoices(m_ppd);
  const QList<ppd_choice_t *> then = choicesOf(snapshot.m_marked);
  for (const QList<ppd_choice_t *> &choices : {without(now, then), without(then, now)}) {
    for (const ppd_choice_t *choice : choices) options << optionOf(choice);
  }
  for (auto custom = m_customValues.begin(); custom != m_customValues.end(); ++custom) {
    if (snapshot.m_customValues.value(custom.key()) != custom.value()) options << custom.key();
  }
  options.removeDuplicates();
  options.sort(Qt::CaseInsensitive);
  return options;
}

}  // namespace orvek
