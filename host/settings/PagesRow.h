// SPDX-License-Identifier: Apache-2.0
// Which pages of the document. Shows and asks; changes nothing by itself.
#pragma once

#include <QWidget>

#include "host/session/JobWarnings.h"
#include "host/ticket/JobSettings.h"

class QLabel;
class QLineEdit;
class QRadioButton;

namespace orvek {

/// Shows page ranges and says what the user types; what is wrong with that stands below the field,
/// in the user's language. Belongs to its parent, owns its child controls, and lives on the
/// interface's thread. Nothing fails.
class PagesRow final : public QWidget {
  Q_OBJECT

 public:
  explicit PagesRow(QWidget *parent = nullptr);

  /// Leaves a text alone that means the same, so that it can be typed in peace. Ranges are held
  /// against the document.
  void setSettings(const JobSettings &settings, const DocumentSides &document);

  bool eventFilter(QObject *watched, QEvent *event) override;

 Q_SIGNALS:
  /// Ranges as CUPS wants them (null: all pages), or what is wrong with what was typed.
  void rangesPicked(const QString &ranges, const QString &problem);

 private:
  void arrange();
  void connectControls();
  void pick();
  QString typingProblem() const;
  QString problem() const;
  void updateControls();

  QRadioButton *m_all;
  QRadioButton *m_some;
  QLineEdit *m_ranges;
  QLabel *m_problem;
  /// A half-typed text is not wrong yet.
  bool m_isTyping = false;
  DocumentSides m_document;
};

}  // namespace orvek
