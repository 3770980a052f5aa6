// SPDX-License-Identifier: Apache-2.0
// PPD files written for one test and parsed by the real libcups.
#pragma once

#include <QList>
#include <QString>
#include <QTemporaryDir>
#include <memory>

#include "platform/printing/PPD.h"

namespace orvek::test {

struct ChoiceText {
  QString keyword;
  /// Its translation; null: the keyword.
  QString text = {};
};

struct OptionText {
  QString keyword;
  QString text;
  QString defaultChoice;
  QList<ChoiceText> choices;
};

/// Collects what a PPD is to hold, and gives the file's text. Begins as a minimal PPD of the
/// maker's driver: manufacturer, model name, OVKImageSmoothing, no finishing option.
class PPDText {
 public:
  PPDText();
  PPDText &manufacturer(const QString &name);
  PPDText &modelName(const QString &name);
  /// Drops an option added before.
  PPDText &without(const QString &keyword);
  PPDText &attribute(const QString &keyword, const QString &value);
  PPDText &option(const OptionText &option);
  PPDText &line(const QString &raw);
  QByteArray text() const;

 private:
  QString m_manufacturer = QStringLiteral("Orvek");
  QString m_modelName = QStringLiteral("Orvek 4150");
  QList<OptionText> m_options;
  QList<QString> m_lines;
};

/// The usual finishing options with their usual choices.
OptionText staplingOption(const QString &defaultChoice = QStringLiteral("None"));
OptionText foldingOption(const QString &defaultChoice = QStringLiteral("None"));
OptionText punchOption(const QString &defaultChoice = QStringLiteral("None"));
OptionText outputBinOption(const QString &defaultChoice = QStringLiteral("Main"));
OptionText jogOption(const QString &defaultChoice = QStringLiteral("False"));
OptionText pageSizeOption();
OptionText installed(const QString &keyword, const QString &defaultChoice,
                     const QList<QString> &choices);

/// A printer with everything: all options, finisher, offset bin, US punch unit, booklet maker.
PPDText fullPrinter();

struct PPDCloser {
  void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using PPDHandle = std::unique_ptr<ppd_file_t, PPDCloser>;

/// Parses the text with libcups and marks its defaults. Null where libcups refuses it.
PPDHandle openPPD(const QByteArray &text);
inline PPDHandle openPPD(const PPDText &text) {
  return openPPD(text.text());
}

}  // namespace orvek::test
