// SPDX-License-Identifier: Apache-2.0
// A document from the network as a stream: open it, ask how it stands, read it in pieces, close it.
// Built on libcurl; nothing of libcurl shows here.
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>

namespace orvek {

/// A GET request by HTTP/1.1.
struct HTTPRequest {
  QUrl url;

  /// A null text counts as an empty one.
  struct Basic {
    QString user;
    QString password;
  };
  /// Basic authentication (RFC 7617), sent with the first request; to no other host than the URL's.
  std::optional<Basic> authentication;
};

/// A request for `url`. Null where there can be none: an empty or invalid URL, or one without
/// scheme.
std::shared_ptr<HTTPRequest> createGetRequest(const QUrl &url);

enum class StreamStatus {
  NotOpen = 0,
  Opening = 1,
  Open = 2,
  Reading = 3,
  Writing = 4,
  AtEnd = 5,
  Closed = 6,
  Error = 7,
};

/// What `StreamError::domain` names.
enum class StreamErrorDomain : long {
  /// libcurl's own numbers.
  Custom = -1,
  /// errno.
  POSIX = 1,
  /// Secure-transport numbers, from tlsErrorFirst to tlsErrorLast.
  TLS = 3,
  /// libcurl's numbers for answers that are no HTTP.
  HTTP = 4,
  /// libcurl's number for names that don't resolve.
  NameLookup = 12
};

inline constexpr long tlsErrorFirst = -9848;
inline constexpr long tlsErrorLast = -9801;

struct StreamError {
  long domain = 0;
  long number = 0;
};

/// What read() gives besides a count: nothing came within a bounded wait. Not an error, and not the
/// end, which is a count of 0.
inline constexpr std::int64_t streamReadNothingYet = -2;
inline constexpr std::int64_t streamReadError = -1;

/// One stream. status(), hasBytesAvailable() and read() wait inside, for a few hundredths of a
/// second at most, where there is nothing to report, so that asking them in a loop costs no
/// processor time. An error shows in read() first and in status() after that. Names are looked up
/// by libcurl; no proxy is used. http and https only.
class ReadStream {
 public:
  /// The request is looked at when the stream opens, so that it may still be completed until then.
  /// Null without a request.
  static std::unique_ptr<ReadStream> createForHTTPRequest(
      std::shared_ptr<const HTTPRequest> request);
  ~ReadStream();
  ReadStream(const ReadStream &) = delete;
  ReadStream &operator=(const ReadStream &) = delete;

  /// Follow redirections (off by default). False once the stream is open.
  bool setShouldAutoredirect(bool follow);

  /// Accept any certificate: expired, from any root, for any name, and those of printers too old
  /// for today's key sizes (off by default). False once the stream is open.
  bool setAcceptsAnyPeer(bool accept);

  /// Starts the transfer. False where it can't be started, or was before.
  bool open();

  StreamStatus status();

  /// Whether read() has something to give without waiting: bytes, the end or an error.
  bool hasBytesAvailable();

  /// Reads up to `into.size()` bytes: their count, 0 at the end, streamReadError or
  /// streamReadNothingYet.
  std::int64_t read(std::span<char> into);

  /// The error that read() reported, or zeroes.
  StreamError error() const;

  /// How long the server said the document is; negative while or where that is unknown. The
  /// server's word, nothing more.
  std::int64_t announcedLength() const;

  void close();

 private:
  class Transfer;
  explicit ReadStream(std::shared_ptr<const HTTPRequest> request);
  std::int64_t finish();

  std::shared_ptr<const HTTPRequest> m_request;
  std::unique_ptr<Transfer> m_transfer;
  bool m_follow = false;
  bool m_acceptAnyPeer = false;
  StreamStatus m_status = StreamStatus::NotOpen;
  StreamError m_error;
};

}  // namespace orvek
