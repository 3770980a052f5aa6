// SPDX-License-Identifier: Apache-2.0
// Rewrites the lines of a PPD that name filters. The tool finds a filter by a name alone only in
// the print server's folder, and of several lines that tell what a filter makes it takes one for
// the format of the whole chain's output: so there is one line for each format taken, by path.

#include "host/jobs/BookletDriver.h"

#include <cups/file.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <array>
#include <optional>
#include <string>

#include "imposition/BookletOptions.h"
#include "platform/system/OptionMap.h"

namespace orvek {
namespace {

const QString driverName = QStringLiteral("orvek-booklet");
constexpr const char *takenFormats[] = {"application/vnd.cups-pdf", "application/postscript"};

/// Below what the program's folder lies in: a build tree, then a prefix.
constexpr const char *foldersBelow[] = {"cups/filter", "lib/cups/filter"};
/// Named when it was configured, absolute or below the prefix; empty where none was.
constexpr const char *configuredFolder = ORVEK_CUPS_FILTER_DIR;

QString textOf(const QString &ppdFile) {
  // Reads compressed files, too, as everybody does who reads PPDs by way of libcups.
  cups_file_t *file = cupsFileOpen(QFile::encodeName(ppdFile).constData(), "r");
  if (file == nullptr) return {};
  QByteArray text;
  std::array<char, 1 << 14> bytes{};
  for (ssize_t size = 0; (size = cupsFileRead(file, bytes.data(), bytes.size())) > 0;) {
    text.append(bytes.data(), size);
  }
  cupsFileClose(file);
  return QString::fromLatin1(text);
}

QRegularExpression lines(const char *pattern) {
  return QRegularExpression(QLatin1String(pattern), QRegularExpression::MultilineOption);
}

bool makesBooklets(const QString &text) {
  static const auto booklets = lines(R"(^\*OVKHasBooklet\s*:\s*"?True)");
  return text.contains(booklets);
}

bool isOurs(const QString &text) {
  static const auto driver = lines(R"(^\*cupsFilter2\s*:\s*"[^"]*[ \t]orvek-booklet\s*")");
  static const auto anyFilter = lines(R"(^\*cupsFilter2?\s*:)");
  if (text.contains(driver)) return true;
  return makesBooklets(text) && !text.contains(anyFilter);
}

// A line may say that a format is the printer's own, or speak of commands to it.
bool hasFilter(const QString &text) {
  static const auto filter =
      lines(R"(^\*cupsFilter2?\s*:\s*"(?!application/vnd\.cups-command\s)[^"]*\s(?!-\s*")\S+\s*")");
  return text.contains(filter);
}

QString withoutFilters(QString text) {
  static const auto filter = lines(R"(^\*cupsFilter2?\s*:.*\n?)");
  return text.remove(filter);
}

QString withDriver(const QString &text, const QString &driver) {
  QString all = withoutFilters(text);
  if (!all.endsWith(u'\n')) all += u'\n';
  for (const char *format : takenFormats) {
    all += QStringLiteral("*cupsFilter: \"%1 0 %2\"\n").arg(QLatin1String(format), driver);
  }
  return all;
}

}  // namespace

DriverPlaces DriverPlaces::ofThisProgram() {
  return {QCoreApplication::applicationDirPath(),
          qEnvironmentVariable("CUPS_SERVERBIN", QStringLiteral(ORVEK_CUPS_SERVERBIN))};
}

QString bookletDriverName() {
  return driverName;
}

QString findBookletDriver(const DriverPlaces &places) {
  QStringList folders;
  const QDir prefix(QDir::cleanPath(places.programFolder + QStringLiteral("/..")));
  for (const char *folder : foldersBelow) folders << prefix.filePath(QString::fromUtf8(folder));
  if (*configuredFolder != '\0') folders << prefix.filePath(QString::fromUtf8(configuredFolder));
  if (!places.serverFolder.isNull()) folders << places.serverFolder + QStringLiteral("/filter");
  for (const QString &folder : folders) {
    const QFileInfo file(QDir(folder), driverName);
    if (file.isFile() && file.isExecutable()) return QDir::cleanPath(file.absoluteFilePath());
  }
  return {};
}

Result<QString> requiredBookletDriver(const DriverPlaces &places) {
  const QString driver = findBookletDriver(places);
  if (!driver.isNull()) return driver;
  return Failure{
      FailureKind::Io, driverName,
      Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                               "not found, so no booklet can be made; install this filter, too"))};
}

bool asksForBooklet(const QMap<QString, QString> &options) {
  const auto value = [&options](const char *key) -> std::optional<std::string> {
    const auto found = valueNamed(options, QLatin1String(key));
    return found ? std::optional(found->toStdString()) : std::nullopt;
  };
  return imposition::readBookletKeys(value).enabled;
}

NamedDriver driverNamedIn(const QString &ppdFile) {
  static const auto driver = lines(R"(^\*cupsFilter2?\s*:\s*"[^"]*[ \t/]orvek-booklet\s*")");
  const QString text = textOf(ppdFile);
  if (text.contains(driver)) return NamedDriver::Ours;
  return makesBooklets(text) && !hasFilter(text) ? NamedDriver::NoneForBooklets
                                                 : NamedDriver::Other;
}

Result<ChainPPD> ChainPPD::of(const QString &ppdFile, const QMap<QString, QString> &options,
                              const DriverPlaces &places) {
  const QString text = textOf(ppdFile);
  if (!isOurs(text)) return ChainPPD(ppdFile);
  if (!asksForBooklet(options)) return copied(ppdFile, withoutFilters(text).toLatin1());
  const auto driver = requiredBookletDriver(places);
  if (!driver) return driver.failure();
  // Text of the PPD goes back as it came, byte by byte; so does the path.
  const QString path = QString::fromLatin1(QFile::encodeName(driver.value()));
  return copied(ppdFile, withDriver(text, path).toLatin1());
}

Result<ChainPPD> ChainPPD::copied(const QString &ppdFile, const QByteArray &text) {
  ChainPPD ppd(ppdFile);
  auto copy = ScratchFile::with(text);
  if (!copy) return copy.failure();
  ppd.m_copy = copy.take();
  return ppd;
}

QString ChainPPD::path() const {
  return m_copy ? m_copy->path() : QFileInfo(m_original).absoluteFilePath();
}

}  // namespace orvek
