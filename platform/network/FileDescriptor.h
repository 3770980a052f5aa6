// SPDX-License-Identifier: Apache-2.0
// A file descriptor with an owner.
#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace orvek {

/// Closes its descriptor when it goes, and leaves errno as it was then. Moves, never copies.
class FileDescriptor {
 public:
  FileDescriptor() = default;
  explicit FileDescriptor(int descriptor) : m_descriptor(descriptor) {}
  FileDescriptor(FileDescriptor &&other) noexcept : m_descriptor(other.release()) {}
  FileDescriptor &operator=(FileDescriptor &&other) noexcept {
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
  }
  ~FileDescriptor() {
    if (m_descriptor < 0) return;
    const int before = errno;
    ::close(m_descriptor);
    errno = before;
  }

  bool valid() const { return m_descriptor >= 0; }
  int get() const { return m_descriptor; }
  int release() { return std::exchange(m_descriptor, -1); }

 private:
  int m_descriptor = -1;
};

}  // namespace orvek
