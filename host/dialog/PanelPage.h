// SPDX-License-Identifier: Apache-2.0
// A page of the dialog that shows a plug-in's panel. Knows the panel's place only.
#pragma once

#include <QPointer>
#include <QWidget>

#include "host/panels/PanelContainer.h"

namespace orvek {

/// Shows a container as large as it is, in the middle, at the top; what room is left stays empty
/// below, and where there is too little it scrolls. The container stays its owner's and is given
/// back when the page goes. Belongs to its parent and lives on the interface's thread; nothing
/// fails.
class PanelPage final : public QWidget {
  Q_OBJECT

 public:
  PanelPage(PanelContainer *container, QWidget *parent);
  ~PanelPage() override;

 private:
  QPointer<PanelContainer> m_container;
};

}  // namespace orvek
