// SPDX-License-Identifier: Apache-2.0
// Reads what libcups knows of a destination: supported and default values, and their names.

#include "host/server/QueueSettings.h"

#include <QUrl>
#include <algorithm>
#include <memory>
#include <span>

#include "host/server/SettingTitles.h"

namespace orvek {
namespace {

const char *const settingNames[] = {"media",     "sides",      "print-color-mode", "print-quality",
                                    "number-up", "output-bin", "finishings"};

/// What the server does by itself, whatever the printer.
const char *const jobSettingNames[] = {"job-sheets", "job-hold-until"};

constexpr std::chrono::milliseconds printerPatience{2000};

using Found = std::unique_ptr<cups_dest_t, void (*)(cups_dest_t *)>;
using Details = std::unique_ptr<cups_dinfo_t, decltype(&cupsFreeDestInfo)>;

void freeOne(cups_dest_t *destination) {
  cupsFreeDests(1, destination);
}

/// A queue and what it can do.
struct Queue {
  http_t *http;
  cups_dest_t *destination;
  cups_dinfo_t *details;
};

/// A job's spelling of one value: enumerations and numbers go over as numbers, the rest as
/// keywords.
QString valueText(ipp_attribute_t *attribute, int index) {
  switch (ippGetValueTag(attribute)) {
    case IPP_TAG_INTEGER:
    case IPP_TAG_ENUM:
      return QString::number(ippGetInteger(attribute, index));
    case IPP_TAG_RANGE:
      return {};
    default:
      return QString::fromUtf8(ippGetString(attribute, index, nullptr));
  }
}

/// libcups gives the keyword itself where neither the printer nor its own catalogs have a name: the
/// very pointer that it was lent, so the title may live no longer than the keyword.
QString titleOr(const char *title, const QByteArray &keyword, const QString &fallback) {
  return title && title != keyword ? QString::fromUtf8(title) : fallback;
}

// Of a paper's names libcups gives the one without margins where it is left the choice, which is
// not what a job gets that names the paper alone.
bool hasBetterTitle(const char *setting, const QByteArray &keyword) {
  if (qstrcmp(setting, "media") != 0) return false;
  const pwg_media_t *media = pwgMediaForPWG(keyword.constData());
  return media && media->ppd;
}

QString choiceTitle(const Queue &queue, const char *setting, const QString &value) {
  const QByteArray keyword = value.toUtf8();
  const QString plain = plainChoiceTitle(QString::fromLatin1(setting), value);
  if (hasBetterTitle(setting, keyword)) return plain;
  const char *title = cupsLocalizeDestValue(queue.http, queue.destination, queue.details, setting,
                                            keyword.constData());
  return titleOr(title, keyword, plain);
}

QString settingTitle(const Queue &queue, const char *setting) {
  const char *title = cupsLocalizeDestOption(queue.http, queue.destination, queue.details, setting);
  return titleOr(title, setting, plainSettingTitle(QString::fromLatin1(setting)));
}

SettingOffer readSetting(const Queue &queue, const char *name) {
  SettingOffer setting{QString::fromLatin1(name), settingTitle(queue, name), {}, {}};
  ipp_attribute_t *supported =
      cupsFindDestSupported(queue.http, queue.destination, queue.details, name);
  for (int i = 0; i < ippGetCount(supported); ++i) {
    const QString value = valueText(supported, i);
    if (value.isEmpty()) continue;
    setting.choices << SettingChoice{value, choiceTitle(queue, name, value)};
  }
  ipp_attribute_t *standard =
      cupsFindDestDefault(queue.http, queue.destination, queue.details, name);
  if (ippGetCount(standard) > 0) setting.standard = valueText(standard, 0);
  return setting;
}

QList<SettingOffer> readSettings(const Queue &queue, std::span<const char *const> names) {
  QList<SettingOffer> settings;
  for (const char *name : names) {
    const auto setting = readSetting(queue, name);
    if (setting.choices.size() > 1) settings << setting;
  }
  return settings;
}

bool knowsPaper(const QList<SettingOffer> &settings) {
  return std::any_of(settings.begin(), settings.end(), [](const SettingOffer &setting) {
    return setting.attribute == QLatin1String("media");
  });
}

/// A server that hands jobs on as they are knows little of the printer, which can be asked itself:
/// under the name that this machine's server has for it. It may be switched off, and must not keep
/// anybody waiting then.
QList<SettingOffer> askPrinterItself(const CupsConnection &connection, cups_dest_t *destination) {
  const QUrl device(QString::fromUtf8(
      cupsGetOption("device-uri", destination->num_options, destination->options)));
  const bool isSecure = device.scheme() == QLatin1String("ipps");
  if (!isSecure && device.scheme() != QLatin1String("ipp")) return {};
  if (!httpAddrLocalhost(httpGetAddress(connection.http()))) return {};
  WaitLimit limit(printerPatience);
  const CupsConnection::Unasked unasked(connection);
  const HttpHandle printer =
      limit.connect(device.host().toUtf8().constData(), device.port(IPP_PORT),
                    isSecure ? HTTP_ENCRYPTION_ALWAYS : HTTP_ENCRYPTION_IF_REQUESTED);
  if (!printer) return {};
  const Details details(cupsCopyDestInfo(printer.get(), destination), &cupsFreeDestInfo);
  return details ? readSettings({printer.get(), destination, details.get()}, settingNames)
                 : QList<SettingOffer>();
}

Result<QList<SettingOffer>> readQueueSettings(const CupsConnection &connection,
                                              const QString &queue, bool isOfJobs) {
  http_t *http = connection.http();
  const Found destination(cupsGetNamedDest(http, queue.toUtf8().constData(), nullptr), &freeOne);
  if (!destination) return connection.lastFailure(queue);
  const Details details(cupsCopyDestInfo(http, destination.get()), &cupsFreeDestInfo);
  if (!details) return connection.lastFailure(queue);
  const Queue asked{http, destination.get(), details.get()};
  if (isOfJobs) return readSettings(asked, jobSettingNames);
  const QList<SettingOffer> settings = readSettings(asked, settingNames);
  if (knowsPaper(settings)) return settings;
  const QList<SettingOffer> ofPrinter = askPrinterItself(connection, destination.get());
  return ofPrinter.isEmpty() ? settings : ofPrinter;
}

}  // namespace

Result<QCborMap> readSettingsAsAsked(const CupsConnection &connection, Fields fields) {
  const QString queue = fields.text("queue");
  const auto settings = readQueueSettings(connection, queue, fields.flag("ofJobs"));
  if (!settings) return settings.failure();
  QCborArray offers;
  for (const SettingOffer &setting : settings.value()) {
    QStringList keywords;
    QStringList titles;
    for (const SettingChoice &choice : setting.choices) {
      keywords << choice.keyword;
      titles << choice.text;
    }
    offers << QCborMap{{QLatin1String("attribute"), fieldOf(setting.attribute)},
                       {QLatin1String("title"), fieldOf(setting.title)},
                       {QLatin1String("standard"), fieldOf(setting.standard)},
                       {QLatin1String("keywords"), fieldOf(keywords)},
                       {QLatin1String("titles"), fieldOf(titles)}};
  }
  return QCborMap{{QLatin1String("offers"), offers}};
}

}  // namespace orvek
