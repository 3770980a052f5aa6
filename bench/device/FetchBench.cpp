// SPDX-License-Identifier: Apache-2.0
// Fetching against a bare libcurl transfer into a buffer that is there already.

#include <curl/curl.h>

#include <cstdlib>
#include <cstring>
#include <vector>

#include "Common/Utilities.h"
#include "bench/Measure.h"
#include "bench/device/Benches.h"

namespace bench {
namespace {

struct Document {
  const char *name;
  std::size_t size;
  int works;
  int rounds;
};
constexpr Document documents[] = {
    {"1k", 1 << 10, 20, 15}, {"1m", 1 << 20, 10, 15}, {"100m", 100 << 20, 1, 9}};

struct Target {
  std::vector<char> *bytes;
  std::size_t filled = 0;
};

std::size_t receive(char *bytes, std::size_t size, std::size_t count, void *to) {
  auto *target = static_cast<Target *>(to);
  std::memcpy(target->bytes->data() + target->filled, bytes, size * count);
  target->filled += size * count;
  return size * count;
}

void fetchBare(const std::string &url, std::vector<char> *buffer, std::size_t size) {
  Target target{buffer};
  CURL *handle = curl_easy_init();
  curl_easy_setopt(handle, CURLOPT_URL, url.c_str());
  curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, receive);
  curl_easy_setopt(handle, CURLOPT_WRITEDATA, &target);
  curl_easy_setopt(handle, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
  curl_easy_setopt(handle, CURLOPT_SSL_VERIFYPEER, 0L);
  curl_easy_setopt(handle, CURLOPT_SSL_VERIFYHOST, 0L);
  curl_easy_perform(handle);
  curl_easy_cleanup(handle);
  if (target.filled != size) std::abort();
}

void compareDocument(const Document &document, const std::string &base, bool secure) {
  std::vector<char> buffer(document.size, 1);
  const std::string url = base + document.name;
  // The secure fetch is told the plain URL, and makes the secure one of it.
  const std::string plain = secure ? "http" + url.substr(5) : url;
  const QUrl own(QString::fromStdString(plain));
  const auto size = static_cast<qsizetype>(document.size);
  const Pair pair = compare(
      document.rounds,
      [&] {
        for (int i = 0; i < document.works; ++i) {
          const QByteArray bytes = secure ? GetURLWithAuthentication_SSL(own, {}, {})
                                          : GetURLWithAuthentication(own, {}, {});
          if (bytes.size() != size) std::abort();
        }
      },
      [&] {
        for (int i = 0; i < document.works; ++i) fetchBare(url, &buffer, document.size);
      });
  line(std::string("fetch ") + document.name + (secure ? ", TLS" : ", plain"), "bare libcurl", pair,
       document.works, "ms", document.size == (100 << 20) ? 1.3 : 0);
}

}  // namespace

void fetch(const char *plainBase, const char *secureBase) {
  curl_global_init(CURL_GLOBAL_DEFAULT);
  for (const Document &document : documents) compareDocument(document, plainBase, false);
  for (const Document &document : documents) compareDocument(document, secureBase, true);
}

}  // namespace bench
