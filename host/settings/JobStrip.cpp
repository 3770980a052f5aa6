// SPDX-License-Identifier: Apache-2.0
// Three groups, each a label and what it names.

#include "host/settings/JobStrip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <algorithm>

#include "host/session/Availability.h"
#include "host/session/CommonSettings.h"
#include "host/settings/ChoiceBox.h"
#include "host/settings/CopiesRow.h"
#include "host/settings/JobChange.h"
#include "host/settings/LabelText.h"
#include "host/settings/Mnemonics.h"
#include "host/settings/PagesRow.h"
#include "platform/ui/PlainText.h"
#include "platform/ui/TextScale.h"

namespace orvek {
namespace {

constexpr int groupGap = 20;
constexpr int lineGap = 4;
constexpr int labelGap = 8;
constexpr int sidesLetters = 14;
// Neither a range nor a choice needs more, and what is left stays together.
constexpr int widestGroup = 340;

// `further`: what shows all of its field, beyond what the group asks for.
void letGrow(QWidget *group, int further = 0) {
  group->setMaximumWidth(std::max(scaledToText(widestGroup), group->sizeHint().width() + further));
  group->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

// How much wider the longest of a few choices is than the letters that their box asks room for.
int beyondLetters(const QComboBox &box) {
  const QFontMetrics letters = box.fontMetrics();
  int widest = 0;
  for (int row = 0; row < box.count(); ++row) {
    widest = std::max(widest, letters.horizontalAdvance(box.itemText(row)));
  }
  return std::max(0, widest - box.minimumContentsLength() * letters.horizontalAdvance(u'X'));
}

}  // namespace

JobStrip::JobStrip(PrintSession &session, QWidget *parent)
    : FlowRow(groupGap, lineGap, parent),
      m_session(session),
      m_copies(new CopiesRow(this)),
      m_pages(new PagesRow(this)),
      m_sides(new ChoiceBox(new Availability(session, this), this)) {
  setObjectName(QStringLiteral("jobStrip"));
  m_sides->setObjectName(QStringLiteral("sides"));
  m_sides->setMinimumContentsLength(sidesLetters);
  addGroup(tr("Copies"), m_copies);
  letGrow(addGroup(tr("Pages"), m_pages)->parentWidget());
  m_sidesLabel = addGroup(tr("Two-sided"), m_sides);
  connectControls();
  connect(&session, &PrintSession::changed, this, &JobStrip::showState);
  showState();
}

// A line that appears below a field has no part in the height of its label.
QLabel *JobStrip::addGroup(const QString &text, QWidget *field) {
  auto *group = new QWidget(this);
  auto *label = new PlainLabel(labelText(text), group);
  label->setBuddy(field);
  const int height = m_sides->sizeHint().height();
  label->setFixedHeight(height);
  field->setMinimumHeight(height);
  auto *row = new QHBoxLayout(group);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(labelGap);
  row->addWidget(label, 0, Qt::AlignTop);
  row->addWidget(field, 1, Qt::AlignTop);
  add(group);
  return label;
}

void JobStrip::connectControls() {
  connect(m_copies, &CopiesRow::copiesPicked, this, [this](int copies) {
    changeJob(m_session, [=](JobSettings *job) { job->copies = copies; });
  });
  connect(m_copies, &CopiesRow::collatePicked, this, [this](bool collate) {
    changeJob(m_session, [=](JobSettings *job) { job->collate = collate; });
  });
  connect(m_pages, &PagesRow::rangesPicked, this,
          [this](const QString &ranges, const QString &problem) {
            changeJob(m_session, [&](JobSettings *job) {
              job->pageRanges = ranges;
              job->pageRangesProblem = problem;
            });
          });
  connect(m_sides, &ChoiceBox::choicePicked, this, [this](const QString &choice) {
    const auto sides = commonSetting(m_session, CommonSetting::Sides);
    if (sides) pickSetting(m_session, *sides, choice);
  });
}

void JobStrip::showState() {
  const JobSettings job = m_session.job().settings();
  m_copies->setSettings(job);
  m_pages->setSettings(job, documentSides(m_session));
  const auto sides = commonSetting(m_session, CommonSetting::Sides);
  m_sidesLabel->parentWidget()->setVisible(sides.has_value());
  if (!sides) return;
  // The PPD's own name is the one that notices use.
  if (!sides->title.isNull() && m_sides->accessibleName() != sides->title) {
    m_sidesLabel->setText(labelText(sides->title));
  }
  m_sides->setAccessibleName(sides->title.isNull() ? tr("Two-sided") : sides->title);
  m_sides->setChoices(sides->key, sides->choices);
  m_sides->setChoice(sides->current);
  letGrow(m_sidesLabel->parentWidget(), beyondLetters(*m_sides));
}

void JobStrip::assignLetters() {
  assignMnemonics(this);
}

void JobStrip::showEvent(QShowEvent *event) {
  FlowRow::showEvent(event);
  assignLetters();
}

}  // namespace orvek
