// SPDX-License-Identifier: Apache-2.0
// Writes the filter as a shell script: what a filter is told comes as plain arguments.

#include "tests/support/CapturingFilter.h"

#include <cups/cups.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

namespace orvek::test {
namespace {

constexpr auto readableByAll =
    QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr auto runnableByAll = readableByAll | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
constexpr auto openToAll = runnableByAll | QFile::WriteGroup | QFile::WriteOther;

QByteArray scriptText(const QString &scratch, const QString &script) {
  return QStringLiteral(
             "#!/bin/sh\n"
             "i=0\n"
             "for a; do i=$((i+1)); printf '%s' \"$a\" >'%1'/argument$i; done\n"
             "%2\n")
      .arg(scratch, script)
      .toUtf8();
}

QByteArray ppdText(const QString &filter) {
  const QByteArray line =
      "*cupsFilter: \"application/vnd.cups-postscript 0 " + filter.toUtf8() + "\"\n";
  QByteArray ppd;
  for (const QByteArray &own : contentsOf(orvekPPD(QStringLiteral("6180"))).split('\n')) {
    if (own.startsWith("*Manufacturer")) ppd += line;
    if (!own.startsWith("*cupsFilter2")) ppd += own + '\n';
  }
  return ppd;
}

}  // namespace

CapturingFilter::CapturingFilter(const QString &script) {
  const QString filter = m_folder.filePath(QStringLiteral("capture"));
  QFile::setPermissions(m_folder.path(), runnableByAll);
  QDir(m_folder.path()).mkdir(QStringLiteral("scratch"));
  QFile::setPermissions(scratch(), openToAll);
  writeContents(filter, scriptText(scratch(), script));
  QFile::setPermissions(filter, runnableByAll);
  writeContents(ppdFile(), ppdText(filter));
  QFile::setPermissions(ppdFile(), readableByAll);
}

QString CapturingFilter::argument(int number) const {
  return QString::fromUtf8(contentsOf(scratch() + QStringLiteral("/argument%1").arg(number)));
}

QMap<QString, QString> CapturingFilter::options() const {
  cups_option_t *options = nullptr;
  const int count = cupsParseOptions(argument(5).toUtf8().constData(), 0, &options);
  QMap<QString, QString> map;
  for (int i = 0; i < count; ++i) {
    map.insert(QString::fromUtf8(options[i].name), QString::fromUtf8(options[i].value));
  }
  cupsFreeOptions(count, options);
  return map;
}

QByteArray contentsOf(const QString &file) {
  QFile opened(file);
  return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
}

void writeContents(const QString &file, const QByteArray &contents) {
  QFile opened(file);
  ASSERT_TRUE(opened.open(QIODevice::WriteOnly)) << file.toStdString();
  ASSERT_EQ(opened.write(contents), contents.size());
}

QString orvekPPD(const QString &model) {
  return QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-%1.ppd").arg(model);
}

QByteArray postScriptDocument(int pages) {
  QByteArray text = "%!PS-Adobe-3.0\n%%Pages: " + QByteArray::number(pages) + "\n%%EndComments\n";
  for (int page = 1; page <= pages; ++page) {
    const QByteArray number = QByteArray::number(page);
    text += "%%Page: " + number + ' ' + number + "\nshowpage\n";
  }
  return text + "%%EOF\n";
}

}  // namespace orvek::test
