// SPDX-License-Identifier: Apache-2.0
// Names under "local": a one-shot multicast DNS query (RFC 6762, section 5.1), readers that walk
// the reply (RFC 1035, section 4.1), and host names as dotted IPv4 text.
//
// The readers take a cursor into a reply of `length` bytes at `start` and move it past what they
// consumed. No byte at or past the end of the reply is ever read, nothing is allocated, and every
// input ends. They write one-line diagnostics to the standard output.
#pragma once

#include <netinet/in.h>

#include <QString>

namespace orvek {

/// What a decoded name may take, its terminating zero byte included. Outputs of decode_name and
/// decode_srv have this size.
inline constexpr int decodedNameSize = 1024;

}  // namespace orvek

extern "C" {

/// Where queries are sent: 224.0.0.251, port 5353. Written again at the start of every query.
extern struct sockaddr_in mDNS_addr;

/// Asks for the records of `rrType` and `rrClass` (RFC 1035, section 3.2) of `name`. A name whose
/// last label is "local" in any case, with or without a final dot, is asked for by multicast on
/// each interface that is up, multicast-capable and not point-to-point, three times a second apart;
/// any other name through the system's resolver (all names on system 10.2.3 and later). Gives how
/// many bytes of the reply `answer` holds, `answerSize` at most: what would not fit is cut off. Or
/// -1 with errno set: ETIMEDOUT where no reply came within about 3 seconds, EINVAL for a null name
/// or answer or a size below 1.
int mDNS_res_query(const char *name, int rrClass, int rrType, unsigned char *answer,
                   int answerSize);

/// Decodes the domain name at the cursor, compressed or not: each label followed by ".", the root
/// name as an empty text. `output` holds orvek::decodedNameSize bytes, or is null.
/// Gives 0; -2 for a compression pointer that does not point back, or after more than 128 of them;
/// -3 where the name leaves the reply or would take more than orvek::decodedNameSize bytes.
/// On failure the output holds the labels before it, and the cursor stands behind the first
/// compression pointer if there was one, else where it was.
int decode_name(const unsigned char **cursor, const unsigned char *start, int length, char *output);

/// Moves the cursor past one question. Gives 0; -1 where the cursor is not in the reply; -2 for a
/// name that can't be decoded; -4 where type or class are cut off (the cursor is behind the name).
int skip_question(const unsigned char **cursor, const unsigned char *start, int length);

/// Moves the cursor past one resource record. If that is an SRV record (RFC 2782), its target is
/// written to `target` (orvek::decodedNameSize bytes, or null) as decode_name writes it, and its
/// port, in network byte order, to `port` (which may be null; left alone where the reply ends
/// before it). A record of another type writes nothing. Gives 0; -1 where the cursor is not in the
/// reply; -2 for an owner name that can't be decoded; -3 with less than 13 bytes behind the owner
/// name. A record that claims more data than the reply has gives a warning, and the cursor ends
/// behind the reply.
int decode_srv(const unsigned char **cursor, const unsigned char *start, int length, char *target,
               unsigned short *port);

/// Moves the cursor past one resource record. If that is a TXT record, its data (length-prefixed
/// strings, RFC 1035, section 3.3.14) are copied to `buffer` of `*size` bytes and `*size` becomes
/// the number of bytes copied: those that the reply really holds. Gives 0; -1 for a null buffer; -2
/// for a null size; -3, -4 and -5 as -1, -2 and -3 of decode_srv; -6 where the record's length is
/// above `*size` (nothing is copied, the cursor is at the data).
int decode_txt(const unsigned char **cursor, const unsigned char *start, int length,
               unsigned char *buffer, unsigned int *size);

// Clang notes that C has no strings like these; callers declare the function in C++.
#ifdef __clang__
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wreturn-type-c-linkage"
#endif
/// The first IPv4 address of `host` in dotted-decimal, or `host` itself where it does not resolve.
QString ResolveToIP(const QString &host);
#ifdef __clang__
#pragma clang diagnostic pop
#endif

}  // extern "C"
