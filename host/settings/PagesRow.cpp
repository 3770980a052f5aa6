// SPDX-License-Identifier: Apache-2.0
// Two radio buttons, a field, and a line for what is wrong with its text.

#include "host/settings/PagesRow.h"

#include <QEvent>
#include <QGridLayout>
#include <QLineEdit>
#include <QRadioButton>

#include "host/session/JobWarnings.h"
#include "host/settings/Announcement.h"
#include "host/ticket/PageRanges.h"
#include "host/translations/FailureText.h"
#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

constexpr int gap = 8;
constexpr int problemColumn = 2;

}  // namespace

PagesRow::PagesRow(QWidget *parent)
    : QWidget(parent),
      m_all(new QRadioButton(tr("All"), this)),
      m_some(new QRadioButton(tr("Range"), this)),
      m_ranges(new QLineEdit(this)),
      m_problem(new PlainLabel(this)) {
  m_all->setObjectName(QStringLiteral("allPages"));
  m_all->setAccessibleName(tr("All pages"));
  m_all->setChecked(true);
  m_some->setObjectName(QStringLiteral("somePages"));
  m_some->setAccessibleName(tr("A range of pages"));
  m_ranges->setObjectName(QStringLiteral("pageRanges"));
  m_ranges->setAccessibleName(tr("Page range"));
  m_ranges->setPlaceholderText(tr("e.g. 1-3, 7"));
  m_problem->setObjectName(QStringLiteral("pageRangesProblem"));
  m_problem->setWordWrap(true);
  setFocusProxy(m_all);
  arrange();
  connectControls();
  updateControls();
}

void PagesRow::arrange() {
  auto *grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(gap);
  grid->setVerticalSpacing(gap / 2);
  grid->addWidget(m_all, 0, 0);
  grid->addWidget(m_some, 0, 1);
  grid->addWidget(m_ranges, 0, problemColumn);
  grid->addWidget(m_problem, 1, problemColumn);
  grid->setColumnStretch(problemColumn, 1);
}

void PagesRow::connectControls() {
  connect(m_all, &QRadioButton::clicked, this, &PagesRow::pick);
  connect(m_some, &QRadioButton::clicked, this, [this] {
    // Nobody has had the time to write any yet.
    m_isTyping = m_ranges->text().trimmed().isEmpty();
    m_ranges->setFocus(Qt::OtherFocusReason);
    pick();
  });
  connect(m_ranges, &QLineEdit::textEdited, this, [this] {
    m_isTyping = true;
    m_some->setChecked(true);
    pick();
  });
  connect(m_ranges, &QLineEdit::editingFinished, this, [this] {
    m_isTyping = false;
    updateControls();
  });
  // A field that was left without a single letter has not been edited to the toolkit.
  m_ranges->installEventFilter(this);
}

bool PagesRow::eventFilter(QObject *watched, QEvent *event) {
  if (watched == m_ranges && event->type() == QEvent::FocusOut) {
    m_isTyping = false;
    updateControls();
  }
  return QWidget::eventFilter(watched, event);
}

void PagesRow::pick() {
  const QString problem = typingProblem();
  const bool hasRanges = m_some->isChecked() && problem.isNull();
  Q_EMIT rangesPicked(hasRanges ? normalizedPageRanges(m_ranges->text()).value() : QString(),
                      m_some->isChecked() ? problem : QString());
  updateControls();
}

void PagesRow::setSettings(const JobSettings &settings, const DocumentSides &document) {
  m_document = document;
  const Result<QString> typed = normalizedPageRanges(m_ranges->text());
  const bool hasRanges = !settings.pageRanges.isNull();
  if (hasRanges && (!typed || typed.value() != settings.pageRanges)) {
    m_ranges->setText(settings.pageRanges);
  }
  const bool isAboutToType = m_some->isChecked() && m_ranges->text().trimmed().isEmpty();
  const bool isSome = hasRanges || !settings.pageRangesProblem.isNull() || isAboutToType;
  (isSome ? m_some : m_all)->setChecked(true);
  updateControls();
}

/// What is wrong with the field's text, whatever the document.
QString PagesRow::typingProblem() const {
  if (m_ranges->text().trimmed().isEmpty()) {
    return tr("Write which pages to print, for example 1-3, 7");
  }
  const Result<QString> typed = normalizedPageRanges(m_ranges->text());
  return typed ? QString() : failureText(typed.failure());
}

QString PagesRow::problem() const {
  if (!m_some->isChecked()) return {};
  if (const QString typing = typingProblem(); !typing.isNull()) return typing;
  JobSettings asked;
  asked.pageRanges = normalizedPageRanges(m_ranges->text()).value();
  return pagesProblem(asked, m_document);
}

void PagesRow::updateControls() {
  const QString problem = this->problem();
  const bool isWrong = !problem.isNull();
  const bool isNew = m_problem->text() != problem;
  m_problem->setText(problem);
  m_problem->setVisible(isWrong && !m_isTyping);
  m_ranges->setAccessibleDescription(problem);
  if (!isWrong || m_isTyping || !isNew) return;
  announce(*m_ranges, problem);
}

}  // namespace orvek
