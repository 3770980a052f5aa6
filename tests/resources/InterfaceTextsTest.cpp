// SPDX-License-Identifier: Apache-2.0
// Every text of the bundle and of the printers, in every language and at the largest usual font,
// where the interface resource shows it: nothing may be cut off.

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "tests/printers/PrinterFamily.h"
#include "tests/resources/InterfaceFixture.h"

namespace orvek::test {
namespace {

constexpr int largestFont = 11;      // points
constexpr int frameAndMargins = 16;  // of a text field, both sides

class InterfaceTexts : public Interface, public ::testing::WithParamInterface<QString> {
 protected:
  void SetUp() override {
    Interface::SetUp();
    QFont font = QApplication::font();
    font.setPointSize(largestFont);
    root->setFont(font);
  }

  void expectFits(const QString &name, const QString &text) const {
    const auto *widget = get(name);
    EXPECT_LE(widget->sizeHint().width(), widget->width())
        << name.toStdString() << ": " << text.toStdString();
    EXPECT_LE(widget->fontMetrics().height(), widget->height()) << name.toStdString();
  }

  void tryLabel(const QString &name, const QString &text) const {
    get<QLabel>(name)->setText(text);
    expectFits(name, text);
  }

  void tryCheckBox(const QString &name, const QString &text) const {
    get<QCheckBox>(name)->setText(text);
    expectFits(name, text);
  }

  void tryItem(const QString &name, const QString &text) const {
    auto *popUp = get<QComboBox>(name);
    popUp->clear();
    popUp->addItem(text);
    expectFits(name, text);
  }

  void tryItems(const QString &name, const ppd_option_t *option) const {
    for (int i = 0; i < option->num_choices; ++i) {
      tryItem(name, QString::fromUtf8(option->choices[i].text));
    }
  }

  void tryOption(ppd_file_t *ppd, const char *keyword, const QString &row) const {
    const ppd_option_t *option = ppdFindOption(ppd, keyword);
    if (option == nullptr) return;
    tryLabel(row + "Lbl", QString::fromUtf8(option->text) + ":");
    tryItems(row + "Popup", option);
  }
};

INSTANTIATE_TEST_SUITE_P(Bundle, InterfaceTexts, ::testing::ValuesIn(bundleLanguages),
                         nameOfLanguage);

TEST_P(InterfaceTexts, OfTheBundleFit) {
  const QJsonObject strings = bundleStrings(GetParam());
  const auto text = [&](const char *key) { return strings.value(QLatin1String(key)).toString(); };
  tryLabel("gutterLbl", text("_PDE_Finishing_Gutter"));
  tryLabel("creepLbl", text("_PDE_Finishing_Creep"));
  tryLabel("paperSizeLbl", text("_PDE_Finishing_Target_Paper_Size"));
  tryItem("paperSizePopup", text("_PDE_Finishing_Fit_Current_Job"));
  tryCheckBox("bookletChckBox", text("_PDE_Finishing_Enable_Booklet"));
  tryCheckBox("rToLChckBox", text("_PDE_Finishing_Right_To_Left"));
  tryCheckBox("pageBroderChckBox", text("_PDE_Finishing_Print_Page_Borders"));
}

TEST_P(InterfaceTexts, OfThePrintersFit) {
  const std::string language = QString(GetParam()).replace(u'-', u'_').toStdString();
  for (const std::string &model : models) {
    const PPD ppd = openPrinterIn(language, model);
    ASSERT_NE(ppd, nullptr);
    tryOption(ppd.get(), "OVKStapling", "stapling");
    tryOption(ppd.get(), "OVKFolding", "folding");
    tryOption(ppd.get(), "OVKPunching", "punch");
    tryOption(ppd.get(), "OutputBin", "paperDest");
    tryItems("paperSizePopup", ppdFindOption(ppd.get(), "PageSize"));
    tryCheckBox("offsetChckBox", QString::fromUtf8(ppdFindOption(ppd.get(), "OVKJog")->text));
  }
}

TEST_P(InterfaceTexts, OfTheNumbersFit) {
  for (const char *name : {"gutterTxtBox", "creepTxtBox"}) {
    const auto *field = get<QLineEdit>(name);
    EXPECT_LE(field->fontMetrics().horizontalAdvance("-144") + frameAndMargins, field->width())
        << name;
  }
}

}  // namespace
}  // namespace orvek::test
