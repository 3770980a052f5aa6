// SPDX-License-Identifier: Apache-2.0
// Hands blocks of documents on from the program to the server.

#include "host/server/SendJob.h"

#include <array>

#include "host/server/CreateJob.h"
#include "host/server/Request.h"

namespace orvek {
namespace {

constexpr int mostRounds = 8;  // passwords, encryption

/// What failures of a document are about: the program knows what to call it.
const Phrase document;

/// One job under way. Borrows the connection.
struct Sending {
  const CupsConnection &connection;
  QByteArray queue;
  QByteArray resource;
  QByteArray format;
  int jobId = 0;
};

/// A document on its way to the server.
struct Upload {
  QString name;
  bool isLast = false;
};

QByteArray formatOf(const CupsOptions &options) {
  if (options.value("raw")) return CUPS_FORMAT_RAW;
  const char *format = options.value("document-format");
  return format ? format : CUPS_FORMAT_AUTO;
}

ipp_t *requestFor(const Sending &job, const Upload &upload) {
  std::array<char, HTTP_MAX_URI> uri{};
  httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), int(uri.size()), "ipp", nullptr, "localhost",
                   ippPort(), "/printers/%s", job.queue.constData());
  ipp_t *request = ippNewRequest(IPP_OP_SEND_DOCUMENT);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.data());
  ippAddInteger(request, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", job.jobId);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  // Without a name a document gets the job's.
  if (!upload.name.isNull()) {
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "document-name", nullptr,
                 upload.name.toUtf8().constData());
  }
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr,
               job.format.constData());
  ippAddBoolean(request, IPP_TAG_OPERATION, "last-document", upload.isLast ? 1 : 0);
  return request;
}

// What of an earlier attempt is still on its way here comes before it.
void awaitBegin(ProgramLink &link, int number) {
  link.say(messageOf(MessageKind::DocumentWanted, {{QLatin1String("number"), number}}));
  while (link.next().kind != MessageKind::DocumentBegin) {
  }
}

http_status_t sendBlocks(const CupsConnection &connection) {
  for (Message block = connection.link().next(); block.kind != MessageKind::DocumentEnd;
       block = connection.link().next()) {
    const qsizetype size = block.bytes.size();
    const http_status_t status = cupsWriteRequestData(connection.http(), block.bytes.constData(),
                                                      static_cast<std::size_t>(size));
    if (status != HTTP_STATUS_CONTINUE) return status;
    connection.link().say(
        messageOf(MessageKind::Taken, {{QLatin1String("bytes"), static_cast<qint64>(size)}}));
  }
  return HTTP_STATUS_CONTINUE;
}

bool signIn(const Sending &job) {
  http_t *http = job.connection.http();
  return cupsDoAuthentication(http, "POST", job.resource.constData()) == 0 &&
         httpReconnect2(http, connectMilliseconds, nullptr) == 0;
}

// libcups has signed in by then, or begun to encrypt; what the server was sent before is lost.
bool mustSendAgain(const CupsConnection &connection, const IppHandle &answer) {
  if (answer || connection.isBroken() || connection.lacksPassword()) return false;
  return cupsLastError() == IPP_STATUS_ERROR_NOT_AUTHENTICATED ||
         cupsLastError() == IPP_STATUS_ERROR_CUPS_UPGRADE_REQUIRED;
}

/// Whether it is there; else it must be sent again.
Result<bool> tryDocument(const Sending &job, int number, const Upload &upload) {
  const CupsConnection &connection = job.connection;
  awaitBegin(connection.link(), number);
  const IppHandle request(requestFor(job, upload));
  const int requestId = ippGetRequestId(request.get());
  http_status_t status = cupsSendRequest(connection.http(), request.get(), job.resource.constData(),
                                         CUPS_LENGTH_VARIABLE);
  if (status == HTTP_STATUS_CONTINUE) status = sendBlocks(connection);
  if (status == HTTP_STATUS_UNAUTHORIZED && signIn(job)) return false;
  if (status != HTTP_STATUS_CONTINUE) return connection.lastFailure(document);
  const IppHandle answer(cupsGetResponse(connection.http(), job.resource.constData()));
  if (isGoodAnswer(connection, answer.get(), requestId)) return true;
  if (mustSendAgain(connection, answer)) return false;
  return badAnswer(connection, answer.get(), requestId, document);
}

Status sendDocument(const Sending &job, int number, const Upload &upload) {
  for (int round = 0; round < mostRounds; ++round) {
    const auto sent = tryDocument(job, number, upload);
    if (!sent) return sent.failure();
    if (sent.value()) return {};
  }
  return job.connection.lastFailure(document);
}

}  // namespace

Result<QCborMap> sendJobAsAsked(const CupsConnection &connection, Fields fields) {
  const CupsOptions options(fields.options("options"));
  const JobSheet sheet{fields.text("queue"), fields.text("address"), fields.text("title"), options,
                       fields.texts("texts")};
  const auto made = createJob(connection, sheet);
  if (!made) return made.failure();
  const QByteArray queue = sheet.queue.toUtf8();
  const Sending job{connection, queue, "/printers/" + queue, formatOf(options), made.value()};
  connection.link().say(messageOf(MessageKind::JobMade, {{QLatin1String("job"), job.jobId}}));
  const QStringList documents = fields.texts("documents");
  for (int i = 0; i < documents.size(); ++i) {
    const bool isLast = i == documents.size() - 1;
    if (Status sent = sendDocument(job, i, {documents[i], isLast}); !sent) return sent.failure();
  }
  return QCborMap();
}

Result<QCborMap> isJobStoppedAsAsked(const CupsConnection &connection, Fields fields) {
  constexpr const char *state = "job-state";
  const QByteArray uri = "ipp://localhost/jobs/" + QByteArray::number(fields.number("job"));
  ipp_t *request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.constData());
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, state);
  const IppHandle answer(cupsDoRequest(connection.http(), request, "/jobs/"));
  ipp_attribute_t *found = ippFindAttribute(answer.get(), state, IPP_TAG_ENUM);
  const bool isStopped = found != nullptr && ippGetInteger(found, 0) == IPP_JSTATE_STOPPED;
  return QCborMap{{QLatin1String("stopped"), isStopped}};
}

Result<QCborMap> cancelJobAsAsked(const CupsConnection &connection, Fields fields) {
  constexpr int keepHistory = 0;
  const QString queue = fields.text("queue");
  const auto job = static_cast<int>(fields.number("job"));
  const ipp_status_t status =
      cupsCancelJob2(connection.http(), queue.toUtf8().constData(), job, keepHistory);
  if (status <= IPP_STATUS_OK_EVENTS_COMPLETE && !connection.isBroken() &&
      !connection.lacksPassword()) {
    return QCborMap();
  }
  return connection.lastFailure(QStringLiteral("%1-%2").arg(queue).arg(job));
}

}  // namespace orvek
