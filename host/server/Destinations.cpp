// SPDX-License-Identifier: Apache-2.0
// Asks libcups for destinations.

#include "host/server/Destinations.h"

#include <QMap>
#include <cstring>

#include "host/printers/Queue.h"
#include "host/server/Request.h"
#include "host/translations/Advice.h"

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

/// Whether the last answer of libcups is one at all: it gives no queue for a server that refuses,
/// too.
bool serverAnswered(const CupsConnection &connection) {
  if (connection.isBroken() || connection.lacksPassword()) return false;
  const ipp_status_t status = cupsLastError();
  return status < IPP_STATUS_REDIRECTION_OTHER_SITE || status == IPP_STATUS_ERROR_NOT_FOUND;
}

/// What drivers and devices said last, by queue. libcups leaves it out of the destinations.
Result<QMap<QString, QString>> stateMessages(const CupsConnection &connection) {
  static const char *const attributes[] = {"printer-name", "printer-state-message"};
  constexpr int attributeCount = 2;
  ipp_t *request = ippNewRequest(IPP_OP_CUPS_GET_PRINTERS);
  ippAddStrings(request, IPP_TAG_OPERATION, IPP_CONST_TAG(IPP_TAG_KEYWORD), "requested-attributes",
                attributeCount, nullptr, attributes);
  const IppHandle response(cupsDoRequest(connection.http(), request, "/"));
  if (!response || !serverAnswered(connection)) {
    return connection.lastFailure(connection.serverName());
  }
  QMap<QString, QString> messages;
  QString name;
  QString message;
  // Within a queue's group the two come in any order; a group ends with an unnamed attribute.
  for (auto *attribute = ippFirstAttribute(response.get()); attribute;
       attribute = ippNextAttribute(response.get())) {
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
  return messages;
}

// Which filter a queue lacks only its message says.
QString messageOf(const CupsConnection &connection, const cups_dest_t &queue) {
  const char *reasons = cupsGetOption("printer-state-reasons", queue.num_options, queue.options);
  if (reasons == nullptr || std::strstr(reasons, "-filter") == nullptr) return {};
  const auto messages = stateMessages(connection);
  return messages ? messages.value().value(QString::fromUtf8(queue.name)) : QString();
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
  return {FailureKind::Io, destination,
          Phrase(noSuchPrinterThere.atTheCommandLine, {connection.serverName()})};
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
  return {FailureKind::Io, connection.serverName(), Phrase(noDefaultPrinter.atTheCommandLine)};
}

QCborMap fieldsOf(const cups_dest_t &queue, const QString &message) {
  QMap<QString, QString> options;
  for (int i = 0; i < queue.num_options; ++i) {
    options.insert(QString::fromUtf8(queue.options[i].name),
                   QString::fromUtf8(queue.options[i].value));
  }
  return {{QLatin1String("name"), fieldOf(QString::fromUtf8(queue.name))},
          {QLatin1String("instance"), fieldOf(QString::fromUtf8(queue.instance))},
          {QLatin1String("default"), queue.is_default != 0},
          {QLatin1String("message"), fieldOf(message)},
          {QLatin1String("options"), fieldOf(options)}};
}

}  // namespace

Result<QCborMap> findDestinationAsAsked(const CupsConnection &connection, Fields fields) {
  if (const Status answers = checkAnswers(connection); !answers) return answers.failure();
  const QString wanted = fields.text("destination");
  const Destination parts = destinationFrom(wanted);
  const QByteArray name = parts.queue.toUtf8();
  const QByteArray instance = parts.instance.toUtf8();
  cups_dest_t *found =
      cupsGetNamedDest(connection.http(), name.isEmpty() ? nullptr : name.constData(),
                       instance.isEmpty() ? nullptr : instance.constData());
  if (found != nullptr) {
    const QCborMap answer = fieldsOf(*found, messageOf(connection, *found));
    cupsFreeDests(1, found);
    return answer;
  }
  if (!serverAnswered(connection)) return connection.lastFailure(connection.serverName());
  return wanted.isEmpty() ? noDefault(connection) : noSuchPrinter(connection, wanted);
}

Result<QCborMap> listDestinations(const CupsConnection &connection) {
  const Destinations destinations(connection.http());
  if (destinations.count() == 0 && !serverAnswered(connection)) {
    return connection.lastFailure(connection.serverName());
  }
  const auto messages = stateMessages(connection);
  if (!messages) return messages.failure();
  QCborArray queues;
  for (const cups_dest_t &queue : destinations) {
    queues << fieldsOf(queue, messages.value().value(QString::fromUtf8(queue.name)));
  }
  return QCborMap{{QLatin1String("queues"), queues}};
}

}  // namespace orvek
