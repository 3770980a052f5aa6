// SPDX-License-Identifier: Apache-2.0
// The place in a dialog where a panel's root view stands. Knows views by their size only.
#pragma once

#include <QPointer>
#include <QWidget>

namespace orvek {

/// Always as large as the view in it, which stands at its origin. The view stays its panel's. Owned
/// by the session's hold on the panel, and lent to the widget that shows it. Belongs to the
/// interface's thread; nothing fails.
class PanelContainer final : public QWidget {
 public:
  explicit PanelContainer(QWidget *parent = nullptr);
  ~PanelContainer() override;

  /// Takes the view in and shows it; one that stands here already stays. Null: nothing.
  void hold(QWidget *view);

  /// The view has another size now: makes room for it. Nothing without a view.
  void makeRoom();

 private:
  QPointer<QWidget> m_view;
};

}  // namespace orvek
