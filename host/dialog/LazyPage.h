// SPDX-License-Identifier: Apache-2.0
// A page that is made when it is looked at for the first time, so that the window opens fast.
#pragma once

#include <QWidget>
#include <functional>

namespace orvek {

/// Empty until it is shown for the first time, when it makes its content and owns it. Belongs to
/// its parent and lives on the interface's thread. Nothing fails.
class LazyPage final : public QWidget {
  Q_OBJECT

 public:
  /// Makes the content as a child of the widget it is given.
  using Maker = std::function<QWidget *(QWidget *)>;

  LazyPage(Maker maker, QWidget *parent);

 protected:
  void showEvent(QShowEvent *event) override;

 private:
  Maker m_maker;
};

}  // namespace orvek
