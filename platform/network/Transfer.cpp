// SPDX-License-Identifier: Apache-2.0
// One libcurl transfer. Bytes go straight to where the reader wants them as long as somebody reads.

#include "platform/network/Transfer.h"

#include <algorithm>
#include <utility>

namespace orvek {
namespace {

constexpr int waitMilliseconds = 50;
constexpr long bufferSize = 32768;  // one read's worth
constexpr long mostRedirections = 20;

bool prepareLibrary() {
  static const bool ready = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
  return ready;
}

/// The secure-transport number that says the most alike; 0 for results that are not about TLS.
long tlsNumber(CURLcode result) {
  switch (result) {
    case CURLE_PEER_FAILED_VERIFICATION:
      return -9807;  // the certificate chain is invalid
    case CURLE_SSL_CONNECT_ERROR:
      return -9824;  // the handshake failed
    case CURLE_SSL_CIPHER:
      return -9801;  // no common cipher
    case CURLE_SSL_CERTPROBLEM:
      return -9808;  // bad certificate format
    case CURLE_SSL_ISSUER_ERROR:
    case CURLE_SSL_CACERT_BADFILE:
    case CURLE_SSL_CRL_BADFILE:
      return -9813;  // no root certificate
    case CURLE_SSL_INVALIDCERTSTATUS:
      return -9814;  // certificate expired or revoked
    case CURLE_SSL_PINNEDPUBKEYNOTMATCH:
      return -9812;  // unknown root
    case CURLE_SSL_SHUTDOWN_FAILED:
      return -9806;  // closed by an error
    default:
      return 0;
  }
}

StreamErrorDomain otherDomain(CURLcode result) {
  switch (result) {
    case CURLE_COULDNT_RESOLVE_HOST:
      return StreamErrorDomain::NameLookup;
    case CURLE_WEIRD_SERVER_REPLY:
    case CURLE_UNSUPPORTED_PROTOCOL:
    case CURLE_GOT_NOTHING:
    case CURLE_PARTIAL_FILE:
    case CURLE_TOO_MANY_REDIRECTS:
    case CURLE_BAD_CONTENT_ENCODING:
      return StreamErrorDomain::HTTP;
    default:
      return StreamErrorDomain::Custom;
  }
}

}  // namespace

std::optional<StreamError> streamErrorFor(CURLcode result, long systemError) {
  if (result == CURLE_OK) return std::nullopt;
  if (const long tls = tlsNumber(result)) {
    return StreamError{static_cast<long>(StreamErrorDomain::TLS), tls};
  }
  const StreamErrorDomain domain = otherDomain(result);
  if (domain == StreamErrorDomain::Custom && systemError != 0) {
    return StreamError{static_cast<long>(StreamErrorDomain::POSIX), systemError};
  }
  return StreamError{static_cast<long>(domain), static_cast<long>(result)};
}

CurlTransfer::CurlTransfer() = default;

CurlTransfer::~CurlTransfer() {
  if (m_multi && m_easy) curl_multi_remove_handle(m_multi.get(), m_easy.get());
}

bool CurlTransfer::start(const HTTPRequest &request, const TransferOptions &options) {
  if (!prepareLibrary()) return false;
  m_multi.reset(curl_multi_init());
  m_easy.reset(curl_easy_init());
  if (!m_multi || !m_easy || !configure(request, options)) return false;
  return curl_multi_add_handle(m_multi.get(), m_easy.get()) == CURLM_OK;
}

bool CurlTransfer::configure(const HTTPRequest &request, const TransferOptions &options) {
  bool ok = true;
  const auto set = [this, &ok](CURLoption option, auto value) {
    ok = curl_easy_setopt(m_easy.get(), option, value) == CURLE_OK && ok;
  };
  set(CURLOPT_URL, request.url.toEncoded().constData());
  set(CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
  set(CURLOPT_PROTOCOLS_STR, "http,https");
  set(CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
  set(CURLOPT_PROXY, "");
  set(CURLOPT_NOSIGNAL, 1L);
  set(CURLOPT_QUICK_EXIT, 1L);  // a name server that keeps silent must not hold up the end
  set(CURLOPT_BUFFERSIZE, bufferSize);
  set(CURLOPT_FOLLOWLOCATION, options.followRedirections ? 1L : 0L);
  set(CURLOPT_MAXREDIRS, mostRedirections);
  set(CURLOPT_WRITEFUNCTION, &CurlTransfer::receive);
  set(CURLOPT_WRITEDATA, static_cast<void *>(this));
  if (request.authentication) {
    // Both, even where one is empty: libcurl sends nothing for a user that it was not given.
    set(CURLOPT_HTTPAUTH, static_cast<long>(CURLAUTH_BASIC));
    set(CURLOPT_USERNAME, request.authentication->user.toUtf8().constData());
    set(CURLOPT_PASSWORD, request.authentication->password.toUtf8().constData());
  }
  if (options.acceptAnyPeer) {
    set(CURLOPT_SSL_VERIFYPEER, 0L);
    set(CURLOPT_SSL_VERIFYHOST, 0L);
    set(CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_0));
    set(CURLOPT_SSL_CIPHER_LIST, "DEFAULT:@SECLEVEL=0");
  }
  return ok;
}

std::size_t CurlTransfer::receive(char *bytes, std::size_t size, std::size_t count, void *self) {
  auto *transfer = static_cast<CurlTransfer *>(self);
  if (!transfer->hasRoom()) {
    transfer->m_paused = true;
    return CURL_WRITEFUNC_PAUSE;
  }
  transfer->append({bytes, size * count});
  return size * count;
}

/// One piece may wait for a reader; with more than that the server has to wait.
bool CurlTransfer::hasRoom() const {
  return m_directFilled < m_direct.size() || leftOver() == 0;
}

void CurlTransfer::append(std::span<const char> bytes) {
  const std::size_t room = m_direct.size() - m_directFilled;
  const std::size_t now = std::min(room, bytes.size());
  std::copy_n(bytes.begin(), now, m_direct.begin() + static_cast<std::ptrdiff_t>(m_directFilled));
  m_directFilled += now;
  const auto rest = bytes.subspan(now);
  m_pending.insert(m_pending.end(), rest.begin(), rest.end());
}

/// Gives whether anything came or the transfer ended.
bool CurlTransfer::perform() {
  const std::size_t before = m_directFilled + m_pending.size();
  if (std::exchange(m_paused, false)) curl_easy_pause(m_easy.get(), CURLPAUSE_CONT);
  int running = 0;
  if (curl_multi_perform(m_multi.get(), &running) != CURLM_OK) {
    m_done = true;
    m_result = CURLE_RECV_ERROR;
  }
  int left = 0;
  while (const CURLMsg *message = curl_multi_info_read(m_multi.get(), &left)) {
    if (message->msg != CURLMSG_DONE) continue;
    m_done = true;
    m_result = message->data.result;
  }
  return m_done || m_directFilled + m_pending.size() != before;
}

void CurlTransfer::advance() {
  if (m_done || perform()) return;
  curl_multi_poll(m_multi.get(), nullptr, 0, waitMilliseconds, nullptr);
  perform();
}

std::size_t CurlTransfer::takeLeftOver(std::span<char> into) {
  const std::size_t count = std::min(into.size(), leftOver());
  std::copy_n(m_pending.begin() + static_cast<std::ptrdiff_t>(m_pendingRead), count, into.begin());
  m_pendingRead += count;
  if (m_pendingRead == m_pending.size()) {
    m_pending.clear();
    m_pendingRead = 0;
  }
  return count;
}

std::size_t CurlTransfer::take(std::span<char> into) {
  if (leftOver() > 0 || m_done) return takeLeftOver(into);
  m_direct = into;
  m_directFilled = 0;
  advance();
  m_direct = {};
  return std::exchange(m_directFilled, 0);
}

std::optional<StreamError> CurlTransfer::failure() const {
  long systemError = 0;
  curl_easy_getinfo(m_easy.get(), CURLINFO_OS_ERRNO, &systemError);
  return streamErrorFor(m_result, systemError);
}

std::int64_t CurlTransfer::announcedLength() const {
  curl_off_t length = -1;
  curl_easy_getinfo(m_easy.get(), CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &length);
  return length;
}

}  // namespace orvek
