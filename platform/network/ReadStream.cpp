// SPDX-License-Identifier: Apache-2.0
// The stream's states over one transfer.

#include "platform/network/ReadStream.h"

#include <algorithm>
#include <cstring>

#include "platform/network/Transfer.h"

namespace orvek {

class ReadStream::Transfer : public CurlTransfer {
 public:
  using CurlTransfer::CurlTransfer;
};

std::shared_ptr<HTTPRequest> createGetRequest(const QUrl &url) {
  if (!url.isValid() || url.isEmpty() || url.scheme().isEmpty()) return nullptr;
  auto request = std::make_shared<HTTPRequest>();
  request->url = url;
  return request;
}

std::unique_ptr<ReadStream> ReadStream::createForHTTPRequest(
    std::shared_ptr<const HTTPRequest> request) {
  if (request == nullptr) return nullptr;
  return std::unique_ptr<ReadStream>(new ReadStream(std::move(request)));
}

ReadStream::ReadStream(std::shared_ptr<const HTTPRequest> request)
    : m_request(std::move(request)) {}

ReadStream::~ReadStream() = default;

bool ReadStream::setShouldAutoredirect(bool follow) {
  if (m_status != StreamStatus::NotOpen) return false;
  m_follow = follow;
  return true;
}

bool ReadStream::setAcceptsAnyPeer(bool accept) {
  if (m_status != StreamStatus::NotOpen) return false;
  m_acceptAnyPeer = accept;
  return true;
}

bool ReadStream::open() {
  if (m_status != StreamStatus::NotOpen) return false;
  m_transfer = std::make_unique<Transfer>();
  if (!m_transfer->start(*m_request, {m_follow, m_acceptAnyPeer})) {
    m_transfer.reset();
    m_status = StreamStatus::Error;
    return false;
  }
  m_status = StreamStatus::Opening;
  return true;
}

StreamStatus ReadStream::status() {
  if (m_status != StreamStatus::Opening) return m_status;
  m_transfer->advance();
  if (m_transfer->hasSomething()) m_status = StreamStatus::Open;
  return m_status;
}

bool ReadStream::hasBytesAvailable() {
  if (m_transfer == nullptr) return false;
  if (!m_transfer->hasSomething()) m_transfer->advance();
  return m_transfer->hasSomething();
}

std::int64_t ReadStream::finish() {
  const std::optional<StreamError> error = m_transfer->failure();
  m_status = error ? StreamStatus::Error : StreamStatus::AtEnd;
  m_error = error.value_or(StreamError{});
  return error ? streamReadError : 0;
}

std::int64_t ReadStream::read(std::span<char> into) {
  if (m_transfer == nullptr) return streamReadError;
  if (m_status == StreamStatus::AtEnd) return 0;
  if (m_status == StreamStatus::Error) return streamReadError;
  const std::size_t count = m_transfer->take(into);
  if (count == 0 && m_transfer->done()) return finish();
  if (count == 0) return streamReadNothingYet;
  m_status = StreamStatus::Reading;
  return static_cast<std::int64_t>(count);
}

StreamError ReadStream::error() const {
  return m_error;
}

std::int64_t ReadStream::announcedLength() const {
  return m_transfer == nullptr ? -1 : m_transfer->announcedLength();
}

void ReadStream::close() {
  m_transfer.reset();
  m_status = StreamStatus::Closed;
}

}  // namespace orvek
