// SPDX-License-Identifier: Apache-2.0
// The readers that walk a DNS reply, all on the one bounded cursor.

#include <arpa/inet.h>

#include <algorithm>
#include <cstdio>

#include "Common/RendezvousUtilities.h"
#include "Common/ReplyCursor.h"

namespace orvek {
namespace {

constexpr int badOffset = -2;
constexpr int pastEnd = -3;

constexpr int pointerMask = 0xC0;
constexpr int pointerSize = 2;
constexpr int pointerOffsetMask = 0x3FFF;
constexpr int mostPointers = 128;  // a legal name has at most 127 labels

constexpr int typeAndClassSize = 4;
constexpr int recordHeaderSize = 10;  // type, class, time to live, length of the data
constexpr int recordLengthOffset = 8;
constexpr int leastRecordRest = 13;  // what has to follow an owner name
constexpr int typeTXT = 16;
constexpr int typeSRV = 33;
constexpr int srvPortOffset = 4;
constexpr int srvTargetOffset = 6;

constexpr const char *invalidOffsetMessage = "\ndecode error, compression offset invalid!";
constexpr const char *loopMessage = "\ndecode error, compression offset yields loop!";
constexpr const char *pastEndMessage = "\ndecode error, name extends past end of packet";
constexpr const char *outsideMessage = "decode error, ran off the buffer";
constexpr const char *shortQuestionMessage = "decode error, packet too short for type and class";
constexpr const char *shortRecordMessage =
    "decode error, packet too short for type, class, ttl, and length";
constexpr const char *shortDataMessage = "decode error, packet too short for reported rr length";

[[gnu::noinline]] int fail(const char *message, int result) {
  std::puts(message);
  return result;
}

/// Where a decoded name is written. Counts also without an output, so that a name is judged alike.
class NameText {
 public:
  explicit NameText(char *output) : m_output(output) {
    if (m_output != nullptr) *m_output = '\0';
  }

  /// Appends the labels that take `size` bytes from `labels` on, each with its dot; false where
  /// they would not fit. The common ones go at once: no label is worth a call for itself.
  bool append(const ReplyCursor &labels, ReplyCursor::Offset size) {
    if (size == 0) return true;
    const bool plain = labels.textLength(0, size) == size;
    if (!plain || m_length + size >= decodedNameSize) {
      m_length = appendOneByOne(labels, size, m_output, m_length);
      return m_length <= decodedNameSize;
    }
    if (m_output != nullptr) writeAll(labels, size, m_output + m_length);
    m_length += size;
    return true;
  }

 private:
  static constexpr ReplyCursor::Offset tooLong = decodedNameSize + 1;

  static void writeAll(const ReplyCursor &labels, ReplyCursor::Offset size, char *text) {
    labels.copy(1, size - 1, text);
    ReplyCursor label = labels;
    for (ReplyCursor::Offset done = 0; done < size;) {
      label.moveTo(labels.offset() + done);
      done += label.byte() + 1;
      text[done - 1] = '.';
    }
    text[size] = '\0';
  }

  /// Gives the length of the text then. A zero byte inside a label ends the label's text, as it
  /// would end the decoded name. What is rare must not slow down what is common: this stays a call.
  [[gnu::noinline]] static ReplyCursor::Offset appendOneByOne(ReplyCursor labels,
                                                              ReplyCursor::Offset size,
                                                              char *output,
                                                              ReplyCursor::Offset length) {
    const ReplyCursor::Offset end = labels.offset() + size;
    while (labels.offset() < end) {
      const ReplyCursor::Offset text = labels.textLength(1, labels.byte());
      constexpr int dotAndEnd = 2;
      if (length + text + dotAndEnd > decodedNameSize) return tooLong;
      if (output != nullptr) {
        labels.copy(1, text, output + length);
        output[length + text] = '.';
        output[length + text + 1] = '\0';
      }
      length += text + 1;
      labels.advance(labels.byte() + 1);
    }
    return length;
  }

  char *m_output;
  ReplyCursor::Offset m_length = 0;
};

/// One name being decoded: reads at `at`, and moves `end`, the caller's cursor, as it goes.
class NameDecoder {
 public:
  NameDecoder(ReplyCursor *end, char *output) : m_at(*end), m_end(end), m_text(output) {}

  int decode() {
    ReplyCursor::Offset loopMark = m_at.offset();
    for (;;) {
      const ReplyCursor labels = m_at;
      const bool ended = passLabels();
      const bool taken = m_text.append(labels, m_at.offset() - labels.offset());
      if (!ended || !taken) return fail(pastEndMessage, pastEnd);
      if (m_at.byte() == 0) break;
      const int result = follow(&loopMark);
      if (result != 0) return result;
    }
    if (m_pointers == 0) m_end->moveTo(m_at.offset() + 1);
    return 0;
  }

 private:
  /// Moves past the labels here; false where the reply ends before a pointer or the name's end.
  bool passLabels() {
    while (m_at.inside()) {
      const ReplyCursor::Offset length = m_at.byte();
      if (length == 0 || (length & pointerMask) == pointerMask) return true;
      ReplyCursor text = m_at;
      text.advance(1);
      if (!text.holds(length)) return false;
      text.advance(length);
      m_at = text;
    }
    return false;
  }

  int follow(ReplyCursor::Offset *loopMark) {
    if (m_pointers == 0) m_end->moveTo(m_at.offset() + pointerSize);
    if (!m_at.holds(pointerSize)) return fail(pastEndMessage, pastEnd);
    const ReplyCursor::Offset target = m_at.number16(0) & pointerOffsetMask;
    if (target >= m_end->offset() || m_pointers == mostPointers) {
      return fail(invalidOffsetMessage, badOffset);
    }
    ++m_pointers;
    if (target == *loopMark) std::puts(loopMessage);
    *loopMark = target;
    m_at.moveTo(target);
    return 0;
  }

  ReplyCursor m_at;
  ReplyCursor *m_end;
  NameText m_text;
  int m_pointers = 0;
};

int decodeName(ReplyCursor *cursor, char *output) {
  return NameDecoder(cursor, output).decode();
}

/// What a resource record says about itself before its data.
struct RecordHeader {
  int type = 0;
  int dataLength = 0;
};

/// What the two record readers return for the same faults.
struct RecordFaults {
  int outside;
  int badOwner;
  int tooShort;
};

/// Moves the cursor from a record's beginning to its data.
int readRecordHeader(ReplyCursor *cursor, RecordHeader *header, const RecordFaults &faults) {
  if (!cursor->inside()) return fail(outsideMessage, faults.outside);
  if (decodeName(cursor, nullptr) != 0) return faults.badOwner;
  if (!cursor->holds(leastRecordRest)) return fail(shortRecordMessage, faults.tooShort);
  header->type = cursor->number16(0);
  header->dataLength = cursor->number16(recordLengthOffset);
  cursor->advance(recordHeaderSize);
  if (!cursor->holds(header->dataLength)) std::puts(shortDataMessage);
  return 0;
}

void readServiceData(ReplyCursor data, char *target, unsigned short *port) {
  if (port != nullptr && data.holds(srvPortOffset + 2)) {
    *port = htons(data.number16(srvPortOffset));
  }
  data.advance(srvTargetOffset);
  decodeName(&data, target);
}

int readServiceRecord(ReplyCursor *cursor, char *target, unsigned short *port) {
  RecordHeader header;
  const int result = readRecordHeader(cursor, &header, {-1, -2, -3});
  if (result != 0) return result;
  if (header.type == typeSRV) readServiceData(*cursor, target, port);
  cursor->advance(header.dataLength);
  return 0;
}

int readTextRecord(ReplyCursor *cursor, unsigned char *buffer, unsigned int *size) {
  RecordHeader header;
  const int result = readRecordHeader(cursor, &header, {-3, -4, -5});
  if (result != 0) return result;
  if (header.type == typeTXT) {
    if (*size < static_cast<unsigned int>(header.dataLength)) return -6;
    const auto there = std::min<ReplyCursor::Offset>(header.dataLength, cursor->remaining());
    cursor->copy(0, there, buffer);
    *size = static_cast<unsigned int>(there);
  }
  cursor->advance(header.dataLength);
  return 0;
}

int skipQuestion(ReplyCursor *cursor) {
  if (!cursor->inside()) return fail(outsideMessage, -1);
  if (decodeName(cursor, nullptr) != 0) return -2;
  if (!cursor->holds(typeAndClassSize)) {
    std::printf("%s", shortQuestionMessage);
    return -4;
  }
  cursor->advance(typeAndClassSize);
  return 0;
}

/// Runs a reader on a cursor made from the caller's pointers and hands the place it reached back.
template <class Reader>
int withCursor(const unsigned char **cursor, const unsigned char *start, int length,
               Reader reader) {
  ReplyCursor at(start, length, cursor == nullptr ? nullptr : *cursor);
  const ReplyCursor::Offset before = at.offset();
  const int result = reader(&at);
  if (cursor != nullptr && at.offset() != before) *cursor = at.position();
  return result;
}

}  // namespace
}  // namespace orvek

int decode_name(const unsigned char **cursor, const unsigned char *start, int length,
                char *output) {
  return orvek::withCursor(cursor, start, length, [output](orvek::ReplyCursor *at) {
    return orvek::decodeName(at, output);
  });
}

int skip_question(const unsigned char **cursor, const unsigned char *start, int length) {
  return orvek::withCursor(cursor, start, length, orvek::skipQuestion);
}

int decode_srv(const unsigned char **cursor, const unsigned char *start, int length, char *target,
               unsigned short *port) {
  return orvek::withCursor(cursor, start, length, [target, port](orvek::ReplyCursor *at) {
    return orvek::readServiceRecord(at, target, port);
  });
}

int decode_txt(const unsigned char **cursor, const unsigned char *start, int length,
               unsigned char *buffer, unsigned int *size) {
  if (buffer == nullptr) return -1;
  if (size == nullptr) return -2;
  return orvek::withCursor(cursor, start, length, [buffer, size](orvek::ReplyCursor *at) {
    return orvek::readTextRecord(at, buffer, size);
  });
}
