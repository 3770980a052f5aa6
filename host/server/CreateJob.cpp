// SPDX-License-Identifier: Apache-2.0
// Sends Create-Job with what is known of the queue.

#include "host/server/CreateJob.h"

#include <array>

#include "host/server/Request.h"

namespace orvek {
namespace {

constexpr const char *networkService = "._tcp";
constexpr std::size_t longestPart = 1024;

// The server's path of a queue that it knows itself; empty for one that libcups has only heard of
// in the network, and would first have to make.
QByteArray pathOf(const QByteArray &uri) {
  if (uri.contains(networkService)) return {};
  std::array<char, longestPart> scheme{};
  std::array<char, longestPart> user{};
  std::array<char, longestPart> host{};
  std::array<char, longestPart> path{};
  int port = 0;
  const auto size = static_cast<int>(longestPart);
  const http_uri_status_t status =
      httpSeparateURI(HTTP_URI_CODING_ALL, uri.constData(), scheme.data(), size, user.data(), size,
                      host.data(), size, &port, path.data(), size);
  const bool isIpp = qstrcmp(scheme.data(), "ipp") == 0 || qstrcmp(scheme.data(), "ipps") == 0;
  return status >= HTTP_URI_STATUS_OK && isIpp ? QByteArray(path.data()) : QByteArray();
}

int jobIn(ipp_t *response) {
  ipp_attribute_t *number = ippFindAttribute(response, "job-id", IPP_TAG_INTEGER);
  return number == nullptr ? 0 : ippGetInteger(number, 0);
}

// The options are encoded first as libcups does it; then what it took for a collection is replaced.
void addTexts(ipp_t *request, const CupsOptions &options, const QStringList &texts) {
  for (const QString &text : texts) {
    const QByteArray name = text.toUtf8();
    const char *value = options.value(name.constData());
    if (value == nullptr) continue;
    if (ipp_attribute_t *encoded = ippFindAttribute(request, name.constData(), IPP_TAG_ZERO)) {
      ippDeleteAttribute(request, encoded);
    }
    ippAddString(request, IPP_TAG_JOB, IPP_TAG_NAME, name.constData(), nullptr, value);
  }
}

ipp_t *requestFor(const QByteArray &uri, const QByteArray &title, const CupsOptions &options,
                  const QStringList &texts) {
  ipp_t *request = ippNewRequest(IPP_OP_CREATE_JOB);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.constData());
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr, title.constData());
  for (const ipp_tag_t group : {IPP_TAG_OPERATION, IPP_TAG_JOB, IPP_TAG_SUBSCRIPTION}) {
    cupsEncodeOptions2(request, options.count(), options.array(), group);
    if (group == IPP_TAG_JOB) addTexts(request, options, texts);
  }
  return request;
}

}  // namespace

Result<int> createJob(const CupsConnection &connection, const JobSheet &sheet) {
  const QByteArray name = sheet.title.toUtf8();
  const QByteArray uri = sheet.address.toUtf8();
  const QByteArray path = pathOf(uri);
  // libcups' own call asks the server for all that the queue can do before it makes the same
  // request, and reads the answer bit by bit; the whole run would take half as long again.
  if (path.isEmpty()) {
    const int job = cupsCreateJob(connection.http(), sheet.queue.toUtf8().constData(),
                                  name.constData(), sheet.options.count(), sheet.options.array());
    return job > 0 ? Result<int>(job) : connection.lastFailure(sheet.queue);
  }
  const auto answer = answerTo(connection, requestFor(uri, name, sheet.options, sheet.texts),
                               path.constData(), sheet.queue);
  if (!answer) return answer.failure();
  const int job = jobIn(answer.value().get());
  if (job > 0) return job;
  return Failure{FailureKind::Io, sheet.queue, unreadableAnswer()};
}

}  // namespace orvek
