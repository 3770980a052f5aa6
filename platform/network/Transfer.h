// SPDX-License-Identifier: Apache-2.0
// One libcurl transfer that advances when told to. Internal to platform/network: nobody else sees
// libcurl.
#pragma once

#include <curl/curl.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "platform/network/ReadStream.h"

namespace orvek {

struct TransferOptions {
  bool followRedirections = false;
  bool acceptAnyPeer = false;
};

/// What libcurl's result means to a reader of the stream: nothing for success.
std::optional<StreamError> streamErrorFor(CURLcode result, long systemError);

class CurlTransfer {
 public:
  CurlTransfer();
  ~CurlTransfer();
  CurlTransfer(const CurlTransfer &) = delete;
  CurlTransfer &operator=(const CurlTransfer &) = delete;

  bool start(const HTTPRequest &request, const TransferOptions &options);

  /// Does what can be done; where that is nothing, waits a moment for something to do.
  void advance();

  /// Moves up to `into.size()` bytes of the document there, advancing where none are left over.
  std::size_t take(std::span<char> into);

  bool done() const { return m_done; }

  /// Whether take() would give bytes, or the transfer is over.
  bool hasSomething() const { return m_done || leftOver() > 0; }

  /// Why it failed. Only once done().
  std::optional<StreamError> failure() const;

  std::int64_t announcedLength() const;

 private:
  struct EasyCleanup {
    void operator()(CURL *handle) const { curl_easy_cleanup(handle); }
  };
  struct MultiCleanup {
    void operator()(CURLM *handle) const { curl_multi_cleanup(handle); }
  };

  static std::size_t receive(char *bytes, std::size_t size, std::size_t count, void *self);
  bool configure(const HTTPRequest &request, const TransferOptions &options);
  bool perform();
  std::size_t leftOver() const { return m_pending.size() - m_pendingRead; }
  bool hasRoom() const;
  void append(std::span<const char> bytes);
  std::size_t takeLeftOver(std::span<char> into);

  std::unique_ptr<CURLM, MultiCleanup> m_multi;
  std::unique_ptr<CURL, EasyCleanup> m_easy;
  // Where the reader waits for bytes.
  std::span<char> m_direct;
  std::size_t m_directFilled = 0;
  // What came while nobody read, or beyond the reader's piece.
  std::vector<char> m_pending;
  std::size_t m_pendingRead = 0;
  bool m_paused = false;
  bool m_done = false;
  CURLcode m_result = CURLE_OK;
};

}  // namespace orvek
