// SPDX-License-Identifier: Apache-2.0
// Asks for jobs: those that have ended come the last one first.

#include "host/server/QueueJobs.h"

#include <algorithm>
#include <array>
#include <vector>

#include "host/server/Request.h"

namespace orvek {
namespace {

constexpr int oldestSeconds = 3600;
constexpr const char *madeAt = "time-at-creation";
constexpr const char *askedAt = "job-printer-up-time";

struct JobsWanted {
  const char *which = nullptr;
  int most = 0;
};
using Attributes = std::vector<const char *>;
constexpr std::array wanted{JobsWanted{"completed", 1}, JobsWanted{"not-completed", 100}};

ipp_t *requestFor(const QByteArray &queue, const JobsWanted &jobs, const Attributes &attributes) {
  std::array<char, HTTP_MAX_URI> uri{};
  httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), int(uri.size()), "ipp", nullptr, "localhost",
                   ippPort(), "/printers/%s", queue.constData());
  ipp_t *request = ippNewRequest(IPP_OP_GET_JOBS);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.data());
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr, jobs.which);
  ippAddInteger(request, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "limit", jobs.most);
  ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                int(attributes.size()), nullptr, attributes.data());
  return request;
}

/// A job as the answer tells of it.
struct ToldJob {
  bool isMarked = false;
  int made = 0;
  int asked = 0;

  bool counts() const { return isMarked && asked - made <= oldestSeconds; }
};

// Each job's attributes are a group; groups have an unnamed attribute between them.
bool tellsOfYoungMark(ipp_t *answer, const QByteArray &mark) {
  ToldJob job;
  for (auto *attribute = ippFirstAttribute(answer); attribute != nullptr;
       attribute = ippNextAttribute(answer)) {
    const QByteArray name(ippGetName(attribute));
    if (name.isNull()) {
      if (job.counts()) return true;
      job = {};
    }
    if (name == mark) job.isMarked = true;
    if (name == madeAt) job.made = ippGetInteger(attribute, 0);
    if (name == askedAt) job.asked = ippGetInteger(attribute, 0);
  }
  return job.counts();
}

/// One question about jobs, which nobody is told the failure of.
struct JobsQuestion {
  const CupsConnection &connection;
  QByteArray queue;
  JobsWanted jobs;

  IppHandle ask(const Attributes &attributes) const {
    if (connection.isBroken()) return nullptr;
    auto answer = answerTo(connection, requestFor(queue, jobs, attributes), "/", QString());
    return answer ? answer.take() : nullptr;
  }
};

// Few queues have such a job, and a hundred jobs' attributes take longer to read than the rest of
// a run: how old they are is asked where it matters.
bool hasMarkedJob(const JobsQuestion &question, const QByteArray &mark) {
  const IppHandle first = question.ask({mark.constData()});
  if (ippFindAttribute(first.get(), mark.constData(), IPP_TAG_ZERO) == nullptr) return false;
  const IppHandle second = question.ask({mark.constData(), madeAt, askedAt});
  return tellsOfYoungMark(second.get(), mark);
}

}  // namespace

Result<QCborMap> hasMarkedJobAsAsked(const CupsConnection &connection, Fields fields) {
  const QString queue = fields.text("queue");
  const QByteArray mark = fields.text("mark").toUtf8();
  const CupsConnection::Unasked unasked(connection);
  const bool isThere = std::any_of(wanted.begin(), wanted.end(), [&](const JobsWanted &jobs) {
    return hasMarkedJob({connection, queue.toUtf8(), jobs}, mark);
  });
  return QCborMap{{QLatin1String("marked"), isThere}};
}

}  // namespace orvek
