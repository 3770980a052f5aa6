// SPDX-License-Identifier: Apache-2.0
// Asks for one attribute.

#include "host/jobs/JobState.h"

#include <cups/cups.h>

#include <string>

namespace orvek {

bool isStoppedByServer(http_t *http, int jobId) {
  constexpr const char *state = "job-state";
  const std::string uri = "ipp://localhost/jobs/" + std::to_string(jobId);
  ipp_t *request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.c_str());
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, state);
  ipp_t *response = cupsDoRequest(http, request, "/jobs/");
  ipp_attribute_t *found = ippFindAttribute(response, state, IPP_TAG_ENUM);
  const bool isStopped = found != nullptr && ippGetInteger(found, 0) == IPP_JSTATE_STOPPED;
  ippDelete(response);
  return isStopped;
}

}  // namespace orvek
