// SPDX-License-Identifier: Apache-2.0
// Lays out the folder and runs programs.

#include "tests/driver/DriverKit.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>

#include "driver/StandardFilters.h"
#include "driver/StandardPPD.h"
#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

constexpr int patience = 100000;

const QStringList kFolders{QStringLiteral("/usr/sbin"), QStringLiteral("/usr/bin"),
                           QStringLiteral("/sbin"), QStringLiteral("/bin")};

constexpr auto everybodyReads = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr auto everybodyRuns = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;

QString filterTool() {
  return QStandardPaths::findExecutable(QStringLiteral("cupsfilter"), kFolders);
}

}  // namespace

Printed finish(QProcess &process, const QByteArray &input) {
  EXPECT_TRUE(process.waitForStarted(patience));
  process.write(input);
  process.closeWriteChannel();
  EXPECT_TRUE(process.waitForFinished(patience));
  Printed printed;
  printed.exitStatus = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
  printed.output = process.readAllStandardOutput();
  printed.messages = QString::fromUtf8(process.readAllStandardError()).split(u'\n');
  return printed;
}

QString bookletFilter() {
  return QStringLiteral(ORVEK_BOOKLET_FILTER);
}

DriverKit::DriverKit() {
  QFile::setPermissions(m_folder.path(), everybodyReads | everybodyRuns | QFile::WriteOwner);
  EXPECT_TRUE(QFile::copy(bookletFilter(), filter()));
  QFile::setPermissions(filter(), everybodyReads | everybodyRuns);
  const QByteArray ppd = contentsOf(orvekPPD(QStringLiteral("6180")));
  writeContents(plainPPD(),
                QByteArray::fromStdString(driver::withoutFilterLines(ppd.toStdString())));
  const QByteArray named = filter().toUtf8() + '"';
  writeContents(this->ppd(), QByteArray(ppd).replace("orvek-booklet\"", named));
}

void DriverKit::addToPPD(const QByteArray &lines) const {
  writeContents(ppd(), contentsOf(ppd()) + lines);
}

QString DriverKit::write(const QString &name, const std::string &contents) const {
  writeContents(path(name), QByteArray::fromStdString(contents));
  QFile::setPermissions(path(name), everybodyReads | QFile::WriteOwner);
  return path(name);
}

QStringList Printed::lines(const QString &prefix) const {
  QStringList found;
  for (const QString &line : messages) {
    if (line.startsWith(prefix)) found << line.mid(prefix.size());
  }
  return found;
}

QString obstacleToFilters() {
  if (filterTool().isEmpty()) return QStringLiteral("cupsfilter is not installed");
  for (const char *filter : {"pdftopdf", "pdftops", "pstops", "gstopdf"}) {
    if (driver::standardFilterPath(filter).empty()) {
      return QStringLiteral("the filter %1 is not installed").arg(QString::fromLatin1(filter));
    }
  }
  return {};
}

Printed printThrough(const QString &ppd, const QStringList &options, const QString &file) {
  QStringList arguments{QStringLiteral("-e"), QStringLiteral("-p"), ppd, QStringLiteral("-m"),
                        QStringLiteral("printer/foo")};
  for (const QString &option : options) {
    if (option.startsWith(u'-')) {
      arguments << option.split(u' ');
    } else {
      arguments << QStringLiteral("-o") << option;
    }
  }
  QProcess process;
  process.start(filterTool(), arguments << file);
  return finish(process);
}

Printed runDriverAlone(const DriverKit &kit, const QString &options, const QString &file,
                       const QByteArray &input, const QStringList &before) {
  QStringList arguments = before;
  arguments << QStringLiteral("1") << QStringLiteral("somebody") << QStringLiteral("a title")
            << QStringLiteral("1") << options;
  if (!file.isEmpty()) arguments << file;
  auto environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("PPD"), kit.ppd());
  environment.insert(QStringLiteral("TMPDIR"), kit.path(QString()));
  QProcess process;
  process.setProcessEnvironment(environment);
  process.start(kit.filter(), arguments);
  return finish(process, input);
}

Printed runDriverIn(const QProcessEnvironment &environment, const DriverKit &kit,
                    const QString &options, const QString &file, const QString &output) {
  QProcess process;
  process.setProcessEnvironment(environment);
  if (!output.isEmpty()) process.setStandardOutputFile(output);
  process.start(kit.filter(), {QStringLiteral("1"), QStringLiteral("somebody"),
                               QStringLiteral("a title"), QStringLiteral("1"), options, file});
  return finish(process);
}

QByteArray withoutDates(const QByteArray &postScript) {
  static const QRegularExpression dates(
      QStringLiteral("D:[0-9]{14}|[0-9-]{10}T[0-9:]{8}|CreationDate:? [^\\n]*"));
  return QString::fromLatin1(postScript).remove(dates).toLatin1();
}

}  // namespace orvek::test
