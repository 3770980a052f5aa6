// SPDX-License-Identifier: Apache-2.0
// The bundle's interface resource, loaded without a panel.
#pragma once

#include <gtest/gtest.h>

#include <QUiLoader>
#include <QWidget>
#include <memory>

#include "tests/resources/BundleFolder.h"

namespace orvek::test {

inline std::unique_ptr<QWidget> loadFinishingView() {
  QFile file(bundleFile(QStringLiteral("en.lproj/Finishing.ui")));
  if (!file.open(QIODevice::ReadOnly)) return nullptr;
  return std::unique_ptr<QWidget>(QUiLoader().load(&file));
}

class Interface : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_NE(root, nullptr); }

  template <typename Widget = QWidget>
  Widget *get(const QString &name) const {
    if (root->objectName() == name) return qobject_cast<Widget *>(root.get());
    return root->findChild<Widget *>(name);
  }

  // In pdeView's coordinates.
  QRect place(const QString &name) const {
    const auto *widget = get(name);
    return {widget->mapTo(root.get(), QPoint()), widget->size()};
  }

  std::unique_ptr<QWidget> root = loadFinishingView();
};

}  // namespace orvek::test
