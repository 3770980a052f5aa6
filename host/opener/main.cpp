// SPDX-License-Identifier: Apache-2.0
// orvek-pdf-opener: says whether a PDF can be printed, as the filters would read and repair it, and
// writes a copy of a protected one that they can open.

#include <cstdint>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iterator>
#include <span>
#include <string>
#include <vector>

#include "driver/PageTree.h"
#include "driver/Qpdf.h"
// Only after it:
#include <qpdf/QPDFWriter.hh>
#include <qpdf/QUtil.hh>

#include "host/jobs/OpenerCall.h"
#include "platform/system/MemoryLimit.h"

namespace {

using namespace orvek;

constexpr int misused = 2;
constexpr int callForLook = 2;
constexpr int callForCopy = 4;
constexpr std::uint64_t mostMemory = std::uint64_t{2} << 30;

int answer(const char *word) {
  std::puts(word);
  return 0;
}

std::string passwordIn(const char *path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The password in each of the writings that programs have made keys of.
std::vector<std::string> writingsOf(const std::string &password) {
  if (password.empty()) return {password};
  return QUtil::possible_repaired_encodings(password);
}

/// False where the password does not open it; what else is wrong is thrown.
bool opens(QPDF &document, const char *path, const std::string &password) {
  document.setSuppressWarnings(true);
  try {
    document.processFile(path, password.c_str());
    return true;
  } catch (const QPDFExc &error) {
    if (error.getErrorCode() != qpdf_e_password) throw;
    return false;
  }
}

bool writeCopy(QPDF &document, const char *path) {
  try {
    QPDFWriter writer(document, path);
    writer.setPreserveEncryption(false);
    writer.setDecodeLevel(qpdf_dl_none);
    writer.write();
    return true;
  } catch (const std::exception &) {
    return false;
  }
}

int look(QPDF &document, const char *copy) {
  // Without a root there is no tree to walk.
  if (!document.getRoot().getKey("/Pages").isDictionary()) return answer(opener::damagedWord);
  const auto pages = driver::pagesOf(document);
  if (!pages) return answer(opener::damagedWord);
  const std::size_t count = pages.value().size();
  if (count == 0) return answer(opener::noPagesWord);
  if (copy != nullptr && !writeCopy(document, copy)) return answer(opener::unwrittenWord);
  std::printf("%s %zu\n", opener::pagesWord, count);
  return 0;
}

int open(std::span<char *const> words) {
  const bool makesCopy = words.size() == callForCopy;
  const std::string password = makesCopy ? passwordIn(words[2]) : std::string();
  for (const std::string &writing : writingsOf(password)) {
    QPDF document;
    if (opens(document, words[1], writing)) return look(document, makesCopy ? words[3] : nullptr);
  }
  return answer(opener::lockedWord);
}

}  // namespace

int main(int count, char **words) {
  if (count != callForLook && count != callForCopy) {
    std::fputs("orvek-pdf-opener: is started by orvek-print, with the document to open\n", stderr);
    return misused;
  }
  limitMemory(mostMemory);
  try {
    return open({words, static_cast<std::size_t>(count)});
  } catch (const std::exception &) {
    return answer(opener::damagedWord);
  }
}
