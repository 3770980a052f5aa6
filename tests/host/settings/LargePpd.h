// SPDX-License-Identifier: Apache-2.0
// A PPD with as many options as a test wants.
#pragma once

#include <QFile>
#include <QString>
#include <QTemporaryDir>

namespace orvek::test {

/// The file vanishes with the object.
class LargePpd {
 public:
  explicit LargePpd(int options, int optionsInAGroup = 100) {
    QFile file(path());
    if (!file.open(QIODevice::WriteOnly)) qFatal("can't write %s", qPrintable(path()));
    file.write(
        "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
        "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*PCFileName: \"LARGE.PPD\"\n"
        "*Manufacturer: \"Orvek\"\n*Product: \"(Large)\"\n*ModelName: \"Large\"\n"
        "*ShortNickName: \"Large\"\n*NickName: \"Large\"\n*PSVersion: \"(3010.000) 0\"\n");
    for (int i = 0; i < options; ++i) {
      if (i % optionsInAGroup == 0) file.write(group(i / optionsInAGroup, i > 0));
      file.write(option(i));
    }
    file.write("*CloseGroup: Group" + QByteArray::number((options - 1) / optionsInAGroup) + "\n");
  }

  QString path() const { return m_folder.filePath(QStringLiteral("large.ppd")); }

 private:
  static QByteArray group(int number, bool closeLast) {
    const QByteArray name = "Group" + QByteArray::number(number);
    const QByteArray last = "*CloseGroup: Group" + QByteArray::number(number - 1) + "\n";
    return (closeLast ? last : QByteArray()) + "*OpenGroup: " + name + "/Group " +
           QByteArray::number(number) + "\n";
  }

  static QByteArray option(int number) {
    const QByteArray name = "Option" + QByteArray::number(number);
    return "*OpenUI *" + name + "/Option " + QByteArray::number(number) + ": PickOne\n*Default" +
           name + ": One\n*" + name + " One/First: \"\"\n*" + name + " Two/Second: \"\"\n*" + name +
           " Three/Third: \"\"\n*CloseUI: *" + name + "\n";
  }

  QTemporaryDir m_folder;
};

}  // namespace orvek::test
