// SPDX-License-Identifier: Apache-2.0
// Bytes that end right before a page that nobody may read: one byte too far stops the test.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <span>

namespace orvek::test {

class GuardedBytes {
 public:
  explicit GuardedBytes(std::span<const unsigned char> bytes)
      : m_page(static_cast<std::size_t>(sysconf(_SC_PAGESIZE))),
        m_size(bytes.size()),
        m_room((bytes.size() / m_page + 1) * m_page) {
    void *mapped =
        mmap(nullptr, m_room + m_page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapped == MAP_FAILED) std::abort();
    m_base = static_cast<unsigned char *>(mapped);
    if (mprotect(m_base + m_room, m_page, PROT_NONE) != 0) std::abort();
    if (!bytes.empty()) std::memcpy(begin(), bytes.data(), bytes.size());
  }
  ~GuardedBytes() { munmap(m_base, m_room + m_page); }
  GuardedBytes(const GuardedBytes &) = delete;
  GuardedBytes &operator=(const GuardedBytes &) = delete;

  unsigned char *begin() { return m_base + m_room - m_size; }
  int size() const { return static_cast<int>(m_size); }

 private:
  std::size_t m_page;
  std::size_t m_size;
  std::size_t m_room;
  unsigned char *m_base = nullptr;
};

}  // namespace orvek::test
