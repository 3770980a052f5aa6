// SPDX-License-Identifier: Apache-2.0
// The panel shown to scripts and tests. The outlets are properties, so the list of views and
// controls is the list of properties of widget type.

#include <QMetaProperty>
#include <QWidget>

#include "panel/OrvekFinishing.h"

using namespace orvek;

QList<QPair<QString, QWidget *>> OrvekFinishing::inspectedControls() const {
  QList<QPair<QString, QWidget *>> controls;
  const QMetaObject &type = staticMetaObject;
  for (int i = type.propertyOffset(); i < type.propertyCount(); ++i) {
    const QMetaProperty outlet = type.property(i);
    controls.append({QLatin1String(outlet.name()), outlet.read(this).value<QWidget *>()});
  }
  return controls;
}

QList<QPair<QString, QString>> OrvekFinishing::inspectedSelections() const {
  return {{QStringLiteral("stapling"), ppdTitle(staplingSelection)},
          {QStringLiteral("folding"), ppdTitle(foldingSelection)},
          {QStringLiteral("punch"), ppdTitle(punchSelection)},
          {QStringLiteral("paperDest"), ppdTitle(paperDestSelection)},
          {QStringLiteral("paperSize"), ppdTitle(paperSizeSelection)},
          {QStringLiteral("offsetCollatedSet"), ppdTitle(offsetCollatedSetSelection)}};
}
