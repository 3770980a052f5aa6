// SPDX-License-Identifier: Apache-2.0
// The tree of options: how rows look, and how a choice is picked in one by mouse and keyboard.
#pragma once

#include <QStyledItemDelegate>
#include <QTreeView>

#include "host/session/Availability.h"

namespace orvek {

class OptionsModel;

/// Draws a choice with an arrow, and edits it in a pop-up whose greyed choices have their reasons.
/// An option that is on or off has a check box. Belongs to its parent and lives on the interface's
/// thread. Nothing fails.
class ChoiceDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  ChoiceDelegate(PrintSession &session, QObject *parent);

  void paint(QPainter *painter, const QStyleOptionViewItem &option,
             const QModelIndex &index) const override;
  QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
  QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                        const QModelIndex &index) const override;
  void setEditorData(QWidget *editor, const QModelIndex &index) const override;
  void setModelData(QWidget *editor, QAbstractItemModel *model,
                    const QModelIndex &index) const override;

 Q_SIGNALS:
  /// The user picked the custom choice, which asks for values.
  void customAsked(const QString &option);

 private:
  void pickIn(QWidget *editor, const QString &option, const QString &choice);

  PrintSession &m_session;
  Availability *m_availability;
};

/// Shows the model, which must outlive it. Belongs to its parent, owns its child controls, and
/// lives on the interface's thread. Nothing fails.
class OptionsView final : public QTreeView {
  Q_OBJECT

 public:
  OptionsView(PrintSession &session, OptionsModel *model, QWidget *parent);

  /// Opens groups: all of them where there are few options, or where a search left some.
  void openGroups();

  /// Opens the pop-up of the option at the index, or opens or closes the group.
  void open(const QModelIndex &index);

  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void currentMoved();
  void setBackAsked();
  void customAsked(const QString &option);

 protected:
  void keyPressEvent(QKeyEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

 private:
  OptionsModel *m_options;
};

}  // namespace orvek
