// SPDX-License-Identifier: Apache-2.0
// A note beside a field, laid over what stands there.
#pragma once

#include <QLabel>
#include <QPointer>

namespace orvek {

/// Says at a field what is to be known while somebody types there; nothing moves for it. Screen
/// readers hear it. Belongs to its parent; lives on the interface's thread; nothing fails.
class FieldNote final : public QObject {
 public:
  /// `name`: the note's for those who look for it. `page`: where it may stand, with its fields
  /// below; absent: the window of the field.
  FieldNote(const QString &name, QWidget *page, QObject *parent);
  ~FieldNote() override;

  /// Behind the field where there is room, else below it. Empty: nothing is to be said.
  void say(const QWidget &field, const QString &words);
  void fallSilent();

 private:
  QWidget *m_page;
  /// Goes with the page that it stands on, which may be sooner.
  QPointer<QLabel> m_note;
};

}  // namespace orvek
