// SPDX-License-Identifier: Apache-2.0
// The texts that no panel sets, as the platform's loader puts them into the interface.

#include <gtest/gtest.h>

#include <QApplication>
#include <QObject>
#include <QWidget>

#include "platform/ui/Bundle.h"
#include "platform/ui/InterfaceResource.h"
#include "tests/resources/BundleFolder.h"

namespace orvek::test {
namespace {

QWidget *loadedView() {
  for (QWidget *view : QApplication::topLevelWidgets()) {
    if (view->objectName() == QLatin1String("pdeView")) return view;
  }
  return nullptr;
}

class EveryInterfaceLanguage : public ::testing::TestWithParam<QString> {};

INSTANTIATE_TEST_SUITE_P(Bundle, EveryInterfaceLanguage, ::testing::ValuesIn(bundleLanguages),
                         nameOfLanguage);

TEST_P(EveryInterfaceLanguage, ShowsToolTipsAndAccessibleNamesInTheUsersLanguage) {
  const auto bundle = Bundle::atPath(QStringLiteral(ORVEK_BUNDLE_DIR), {GetParam()});
  QObject owner;
  ASSERT_TRUE(loadInterface(bundle.get(), QStringLiteral("Finishing"), &owner));
  const QWidget *view = loadedView();
  ASSERT_NE(view, nullptr);
  const QJsonObject strings = bundleStrings(GetParam());
  EXPECT_EQ(view->findChild<QWidget *>(QStringLiteral("creepSlider"))->accessibleName(),
            strings.value(QStringLiteral("_PDE_Finishing_Creep")).toString());
  for (const QWidget *widget : view->findChildren<QWidget *>()) {
    EXPECT_FALSE(widget->toolTip().startsWith(QStringLiteral("_PDE_")));
    EXPECT_FALSE(widget->accessibleName().startsWith(QStringLiteral("_PDE_")));
  }
}

}  // namespace
}  // namespace orvek::test
