// SPDX-License-Identifier: Apache-2.0
// Writes PPD texts and hands them to libcups.

#include "tests/support/TestPPD.h"

#include <QTemporaryFile>
#include <algorithm>

namespace orvek::test {
namespace {

QString optionLines(const OptionText &option) {
  QString text = QStringLiteral("*OpenUI *%1/%2: PickOne\n*OrderDependency: 10 AnySetup *%1\n")
                     .arg(option.keyword, option.text);
  if (!option.defaultChoice.isNull()) {
    text += QStringLiteral("*Default%1: %2\n").arg(option.keyword, option.defaultChoice);
  }
  for (const ChoiceText &choice : option.choices) {
    text += QStringLiteral("*%1 %2/%3: \"<</%1(%2)>>setpagedevice\"\n")
                .arg(option.keyword, choice.keyword,
                     choice.text.isNull() ? choice.keyword : choice.text);
  }
  return text + QStringLiteral("*CloseUI: *%1\n").arg(option.keyword);
}

}  // namespace

PPDText::PPDText() {
  option({QStringLiteral("OVKImageSmoothing"),
          QStringLiteral("Image Smoothing"),
          QStringLiteral("False"),
          {{QStringLiteral("False"), QStringLiteral("Off")},
           {QStringLiteral("True"), QStringLiteral("On")}}});
}

PPDText &PPDText::manufacturer(const QString &name) {
  m_manufacturer = name;
  return *this;
}

PPDText &PPDText::modelName(const QString &name) {
  m_modelName = name;
  return *this;
}

PPDText &PPDText::without(const QString &keyword) {
  m_options.removeIf([&](const OptionText &option) { return option.keyword == keyword; });
  return *this;
}

PPDText &PPDText::attribute(const QString &keyword, const QString &value) {
  return line(QStringLiteral("*%1: \"%2\"").arg(keyword, value));
}

PPDText &PPDText::option(const OptionText &option) {
  without(option.keyword);
  m_options.append(option);
  return *this;
}

PPDText &PPDText::line(const QString &raw) {
  m_lines.append(raw);
  return *this;
}

QByteArray PPDText::text() const {
  QString text = QStringLiteral(
      "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
      "*LanguageVersion: English\n*LanguageEncoding: UTF-8\n*PCFileName: \"TEST.PPD\"\n"
      "*Product: \"(Test)\"\n*PSVersion: \"(3010.000) 0\"\n*ShortNickName: \"Test\"\n"
      "*NickName: \"Test\"\n");
  if (!m_manufacturer.isNull()) {
    text += QStringLiteral("*Manufacturer: \"%1\"\n").arg(m_manufacturer);
  }
  if (!m_modelName.isNull()) text += QStringLiteral("*ModelName: \"%1\"\n").arg(m_modelName);
  for (const QString &line : m_lines) text += line + QLatin1Char('\n');
  for (const OptionText &option : m_options) text += optionLines(option);
  return text.toUtf8();
}

OptionText staplingOption(const QString &defaultChoice) {
  return {QStringLiteral("OVKStapling"),
          QStringLiteral("Stapling"),
          defaultChoice,
          {{QStringLiteral("None"), QStringLiteral("Off")},
           {QStringLiteral("Front"), QStringLiteral("Front corner")},
           {QStringLiteral("Rear"), QStringLiteral("Rear corner")},
           {QStringLiteral("Dual"), QStringLiteral("Two staples")},
           {QStringLiteral("FrontFlip"), QStringLiteral("Front corner, flipped")},
           {QStringLiteral("RearFlip"), QStringLiteral("Rear corner, flipped")},
           {QStringLiteral("DualFlip"), QStringLiteral("Two staples, flipped")}}};
}

OptionText foldingOption(const QString &defaultChoice) {
  return {QStringLiteral("OVKFolding"),
          QStringLiteral("Folding"),
          defaultChoice,
          {{QStringLiteral("None"), QStringLiteral("Off")},
           {QStringLiteral("Fold"), QStringLiteral("Half fold")},
           {QStringLiteral("Saddle"), QStringLiteral("Saddle fold")}}};
}

OptionText punchOption(const QString &defaultChoice) {
  return {QStringLiteral("OVKPunching"),
          QStringLiteral("Hole punch"),
          defaultChoice,
          {{QStringLiteral("None"), QStringLiteral("Off")},
           {QStringLiteral("2Hole"), QStringLiteral("2 holes")},
           {QStringLiteral("3Hole"), QStringLiteral("3 holes")},
           {QStringLiteral("4Hole"), QStringLiteral("4 holes")}}};
}

OptionText outputBinOption(const QString &defaultChoice) {
  return {QStringLiteral("OutputBin"),
          QStringLiteral("Output bin"),
          defaultChoice,
          {{QStringLiteral("Main"), QStringLiteral("Main tray")},
           {QStringLiteral("Offset"), QStringLiteral("Offset bin")},
           {QStringLiteral("Finisher"), QStringLiteral("Finisher tray")}}};
}

OptionText jogOption(const QString &defaultChoice) {
  return {QStringLiteral("OVKJog"),
          QStringLiteral("Offset sets"),
          defaultChoice,
          {{QStringLiteral("False"), QStringLiteral("Off")},
           {QStringLiteral("True"), QStringLiteral("On")}}};
}

OptionText pageSizeOption() {
  return {QStringLiteral("PageSize"),
          QStringLiteral("Paper size"),
          QStringLiteral("A4"),
          {{QStringLiteral("A3")},
           {QStringLiteral("A4")},
           {QStringLiteral("A5")},
           {QStringLiteral("Letter")},
           {QStringLiteral("Legal")}}};
}

OptionText installed(const QString &keyword, const QString &defaultChoice,
                     const QList<QString> &choices) {
  OptionText option{keyword, keyword, defaultChoice, {}};
  for (const QString &choice : choices) option.choices.append({choice, {}});
  return option;
}

PPDText fullPrinter() {
  const QList<QString> falseTrue{QStringLiteral("False"), QStringLiteral("True")};
  PPDText text;
  text.attribute(QStringLiteral("OVKHasBooklet"), QStringLiteral("True"))
      .option(staplingOption())
      .option(foldingOption())
      .option(punchOption())
      .option(outputBinOption())
      .option(jogOption())
      .option(pageSizeOption())
      .option(installed(QStringLiteral("OVKOptionFinisher"), QStringLiteral("True"), falseTrue))
      .option(installed(QStringLiteral("OVKOptionOffsetBin"), QStringLiteral("True"), falseTrue))
      .option(installed(
          QStringLiteral("OVKOptionPunch"), QStringLiteral("US_Punch"),
          {QStringLiteral("None"), QStringLiteral("US_Punch"), QStringLiteral("Metric_Punch")}));
  return text;
}

PPDHandle openPPD(const QByteArray &text) {
  QTemporaryFile file;
  if (!file.open()) return nullptr;
  file.write(text);
  file.flush();
  PPDHandle ppd(ppdOpenFile(file.fileName().toLocal8Bit().constData()));
  if (ppd) ppdMarkDefaults(ppd.get());
  return ppd;
}

}  // namespace orvek::test
