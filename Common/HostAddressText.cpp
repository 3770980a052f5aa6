// SPDX-License-Identifier: Apache-2.0
// Host names as the text of their address. Apart from the query, which needs no strings of Qt's.

#include <arpa/inet.h>

#include <array>

#include "Common/RendezvousUtilities.h"
#include "platform/network/HostAddress.h"

QString ResolveToIP(const QString &host) {
  const QByteArray name = host.toLatin1();
  if (QString::fromLatin1(name) != host) return host;
  const auto address = orvek::firstIPv4Address(host.isNull() ? nullptr : name.constData());
  if (!address) return host;
  std::array<char, INET_ADDRSTRLEN> text{};
  inet_ntop(AF_INET, &*address, text.data(), text.size());
  return QString::fromLatin1(text.data());
}
