// SPDX-License-Identifier: Apache-2.0
// A bar above the pages that says what happened, with one step back where there is one. Shows
// words, knows no session.
#pragma once

#include <QFrame>
#include <QStringList>

class QLabel;
class QPushButton;
class QToolButton;

namespace orvek {

/// Hidden while it has nothing to say. Screen readers are told when it speaks. Belongs to its
/// parent, owns its child controls, and lives on the interface's thread. Nothing fails.
class NoticeBar final : public QFrame {
  Q_OBJECT

 public:
  enum class Kind { Information, Problem };

  explicit NoticeBar(QWidget *parent = nullptr);

  /// Shows the sentences, one a line, in place of what stood there.
  void say(Kind kind, const QStringList &sentences, bool canUndo);

  /// The sentences shown; empty while hidden.
  const QStringList &sentences() const { return m_sentences; }

  /// Hides the bar.
  void fallSilent();

 Q_SIGNALS:
  void undoAsked();

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  void showKind();

  Kind m_kind = Kind::Information;
  QStringList m_sentences;
  QLabel *m_icon;
  QLabel *m_text;
  QPushButton *m_undo;
  QToolButton *m_close;
};

}  // namespace orvek
