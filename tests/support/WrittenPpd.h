// SPDX-License-Identifier: Apache-2.0
// What PPDs of many options that a test writes line by line have in common.
#pragma once

#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <initializer_list>
#include <utility>

namespace orvek::test {

/// The lines that such a PPD begins with.
inline QByteArray ppdHead(const QByteArray &model) {
  return "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
         "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*PCFileName: \"" +
         model.toUpper() + ".PPD\"\n*Manufacturer: \"Orvek\"\n*Product: \"(" + model +
         ")\"\n*ModelName: \"" + model + "\"\n*ShortNickName: \"" + model + "\"\n*NickName: \"" +
         model + "\"\n*PSVersion: \"(3010.000) 0\"\n";
}

/// The lines of "Option7", for people "Option 7": its default, and its choices with their texts.
inline QByteArray numberedOption(
    int number, const QByteArray &standard,
    std::initializer_list<std::pair<const char *, const char *>> choices) {
  const QByteArray name = "Option" + QByteArray::number(number);
  QByteArray lines = "*OpenUI *" + name + "/Option " + QByteArray::number(number) +
                     ": PickOne\n*Default" + name + ": " + standard + "\n";
  for (const auto &[keyword, text] : choices) {
    lines += "*" + name + " " + keyword + "/" + text + ": \"\"\n";
  }
  return lines + "*CloseUI: *" + name + "\n";
}

/// The file of a PPD. It vanishes with the object.
class WrittenPpd {
 public:
  explicit WrittenPpd(const QByteArray &text) {
    QFile file(path());
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
      qFatal("can't write %s", qPrintable(path()));
    }
  }

  QString path() const { return m_folder.filePath(QStringLiteral("written.ppd")); }

 private:
  QTemporaryDir m_folder;
};

}  // namespace orvek::test
