// SPDX-License-Identifier: Apache-2.0
// A PPD whose options all exclude each other: where one of them is on, every other must be off.
#pragma once

#include <QFile>
#include <QString>
#include <QTemporaryDir>

namespace orvek::test {

/// The options are called Option0, Option1 ...; each is Off or On. The file vanishes with the
/// object.
class ExclusivePpd {
 public:
  enum class Form { UIConstraints, CupsUIConstraints };

  explicit ExclusivePpd(int options, Form form = Form::UIConstraints,
                        const char *standard = "Off") {
    QFile file(path());
    if (!file.open(QIODevice::WriteOnly)) qFatal("can't write %s", qPrintable(path()));
    file.write(
        "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
        "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*PCFileName: \"ONE.PPD\"\n"
        "*Manufacturer: \"Orvek\"\n*Product: \"(One)\"\n*ModelName: \"One\"\n"
        "*ShortNickName: \"One\"\n*NickName: \"One\"\n*PSVersion: \"(3010.000) 0\"\n");
    for (int i = 0; i < options; ++i) file.write(option(i, standard));
    for (int i = 0; i < options; ++i) {
      for (int j = 0; j < i; ++j) file.write(constraint(j, i, form));
    }
  }

  QString path() const { return m_folder.filePath(QStringLiteral("exclusive.ppd")); }

 private:
  static QByteArray name(int number) { return "Option" + QByteArray::number(number); }

  static QByteArray option(int number, const char *standard) {
    return "*OpenUI *" + name(number) + "/Option " + QByteArray::number(number) +
           ": PickOne\n*Default" + name(number) + ": " + standard + "\n*" + name(number) +
           " Off/Off: \"\"\n*" + name(number) + " On/On: \"\"\n*CloseUI: *" + name(number) + "\n";
  }

  static QByteArray constraint(int one, int other, Form form) {
    const QByteArray first = "*" + name(one) + " On";
    const QByteArray second = "*" + name(other) + " On";
    if (form == Form::CupsUIConstraints) {
      return "*cupsUIConstraints: \"" + first + " " + second + "\"\n";
    }
    return "*UIConstraints: " + first + " " + second + "\n*UIConstraints: " + second + " " + first +
           "\n";
  }

  QTemporaryDir m_folder;
};

}  // namespace orvek::test
