// SPDX-License-Identifier: Apache-2.0
// Asks libcups for destinations and reads their attributes.

#include "host/printers/PrinterList.h"

namespace orvek {
namespace {

/// Destinations of libcups, freed with their holder.
class Destinations {
 public:
  explicit Destinations(http_t *http) : m_count(cupsGetDests2(http, &m_first)) {}
  ~Destinations() { cupsFreeDests(m_count, m_first); }
  Destinations(const Destinations &) = delete;
  Destinations &operator=(const Destinations &) = delete;
  const cups_dest_t *begin() const { return m_first; }
  const cups_dest_t *end() const { return m_first + m_count; }
  int count() const { return m_count; }

 private:
  cups_dest_t *m_first = nullptr;
  int m_count = 0;
};

QString textOption(const QMap<QString, QString> &options, const char *name) {
  const QString value = options.value(QString::fromLatin1(name));
  return value.isEmpty() ? QString() : value;
}

PrinterState stateFrom(const QString &number) {
  switch (number.toInt()) {
    case IPP_PSTATE_IDLE:
      return PrinterState::Idle;
    case IPP_PSTATE_PROCESSING:
      return PrinterState::Printing;
    case IPP_PSTATE_STOPPED:
      return PrinterState::Stopped;
    default:
      return PrinterState::Unknown;
  }
}

QStringList reasonsFrom(const QString &keywords) {
  QStringList words;
  for (const QString &keyword : keywords.split(u',', Qt::SkipEmptyParts)) {
    const QString reason = reasonInWords(keyword.trimmed());
    if (!reason.isEmpty() && !words.contains(reason)) words << reason;
  }
  return words;
}

/// What drivers and devices said last, by queue. libcups leaves it out of the destinations. One
/// that does not come costs only the message.
QMap<QString, QString> stateMessages(http_t *http) {
  static const char *const attributes[] = {"printer-name", "printer-state-message"};
  constexpr int attributeCount = 2;
  ipp_t *request = ippNewRequest(IPP_OP_CUPS_GET_PRINTERS);
  ippAddStrings(request, IPP_TAG_OPERATION, IPP_CONST_TAG(IPP_TAG_KEYWORD), "requested-attributes",
                attributeCount, nullptr, attributes);
  ipp_t *response = cupsDoRequest(http, request, "/");
  QMap<QString, QString> messages;
  QString name;
  QString message;
  // Within a queue's group the two come in any order; a group ends with an unnamed attribute.
  for (auto *attribute = ippFirstAttribute(response); attribute;
       attribute = ippNextAttribute(response)) {
    const QByteArray keyword(ippGetName(attribute));
    if (keyword.isNull()) {
      name.clear();
      message.clear();
    }
    if (keyword == "printer-name") name = QString::fromUtf8(ippGetString(attribute, 0, nullptr));
    if (keyword == "printer-state-message") {
      message = QString::fromUtf8(ippGetString(attribute, 0, nullptr));
    }
    if (!name.isEmpty() && !message.isEmpty()) messages.insert(name, message);
  }
  ippDelete(response);
  return messages;
}

/// Whether no queue at all is an answer: libcups gives the same for a server that refuses.
bool serverAnswered(const CupsConnection &connection) {
  const ipp_status_t status = cupsLastError();
  if (connection.lacksPassword()) return false;
  return status < IPP_STATUS_REDIRECTION_OTHER_SITE || status == IPP_STATUS_ERROR_NOT_FOUND;
}

/// Where a question about one queue fails, libcups asks again over a connection of its own, which
/// waits as long as the server likes. So a server has to show first that it answers at all.
Status checkAnswers(const CupsConnection &connection) {
  ipp_t *request = ippNewRequest(IPP_OP_CUPS_GET_DEFAULT);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
               "printer-name");
  ippDelete(cupsDoRequest(connection.http(), request, "/"));
  return connection.isBroken() ? connection.lastFailure(connection.serverName()) : Status();
}

Failure noSuchPrinter(const CupsConnection &connection, const QString &destination) {
  return {
      FailureKind::Io, destination,
      Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                               "no such printer on %1; \"orvek-print --list-printers\" lists them"),
             {connection.serverName()})};
}

Failure noDefault(const CupsConnection &connection) {
  for (const char *variable : {"LPDEST", "PRINTER"}) {
    const QString named = qEnvironmentVariable(variable);
    const bool counts = !named.isEmpty() && named != QStringLiteral("lp");
    if (counts) {
      return {
          FailureKind::Io, QString::fromLatin1(variable),
          Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "names a printer that does not exist: \"%1\""),
                 {named})};
    }
  }
  return {
      FailureKind::Io, connection.serverName(),
      Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "there is no default printer; name one with -d"))};
}

}  // namespace

Queue queueFrom(const cups_dest_t &destination) {
  Queue queue;
  queue.name = QString::fromUtf8(destination.name);
  queue.instance = QString::fromUtf8(destination.instance);
  queue.isDefault = destination.is_default != 0;
  for (int i = 0; i < destination.num_options; ++i) {
    queue.options.insert(QString::fromUtf8(destination.options[i].name),
                         QString::fromUtf8(destination.options[i].value));
  }
  const auto &options = queue.options;
  queue.info = textOption(options, "printer-info");
  queue.location = textOption(options, "printer-location");
  queue.makeAndModel = textOption(options, "printer-make-and-model");
  queue.deviceUri = textOption(options, "device-uri");
  queue.state = stateFrom(textOption(options, "printer-state"));
  queue.reasons = reasonsFrom(textOption(options, "printer-state-reasons"));
  queue.acceptsJobs = textOption(options, "printer-is-accepting-jobs") != QStringLiteral("false");
  return queue;
}

Result<QList<Queue>> listPrinters(const ServerAccess &access) {
  auto connection = CupsConnection::open(access);
  if (!connection) return connection.failure();
  const Destinations destinations(connection.value()->http());
  if (destinations.count() == 0 && !serverAnswered(*connection.value())) {
    return connection.value()->lastFailure(connection.value()->serverName());
  }
  const auto messages = stateMessages(connection.value()->http());
  QList<Queue> queues;
  queues.reserve(destinations.count());
  for (const cups_dest_t &destination : destinations) {
    queues << queueFrom(destination);
    queues.last().stateMessage = messages.value(queues.last().name);
  }
  return queues;
}

Result<Queue> findPrinter(const ServerAccess &access, const QString &destination) {
  auto connection = CupsConnection::open(access);
  if (!connection) return connection.failure();
  return findPrinter(*connection.value(), destination);
}

Result<Queue> findPrinter(const CupsConnection &connection, const QString &destination) {
  if (const Status answers = checkAnswers(connection); !answers) return answers.failure();
  const Destination wanted = destinationFrom(destination);
  const QByteArray name = wanted.queue.toUtf8();
  const QByteArray instance = wanted.instance.toUtf8();
  cups_dest_t *found =
      cupsGetNamedDest(connection.http(), name.isEmpty() ? nullptr : name.constData(),
                       instance.isEmpty() ? nullptr : instance.constData());
  if (!found) {
    if (!serverAnswered(connection)) return connection.lastFailure(connection.serverName());
    return destination.isEmpty() ? noDefault(connection) : noSuchPrinter(connection, destination);
  }
  Queue queue = queueFrom(*found);
  cupsFreeDests(1, found);
  return queue;
}

}  // namespace orvek
