// SPDX-License-Identifier: Apache-2.0
// orvek-device fetch: a document from a printer's web server. The password comes from a file, since
// a command line is seen by everybody on the machine.

#include <getopt.h>

#include <QFile>
#include <array>

#include "Common/Utilities.h"
#include "device/Commands.h"

namespace orvek::device {
namespace {

struct FetchArguments {
  QUrl url;
  QString user;
  QString password;
};

int readPassword(const char *path, QString *password) {
  QFile file(QString::fromLocal8Bit(path));
  if (!file.open(QIODevice::ReadOnly)) {
    return complain(BadArgument, path, file.errorString().toUtf8().constData());
  }
  QByteArray line = file.readLine();
  while (line.endsWith('\n') || line.endsWith('\r')) line.chop(1);
  *password = line.isEmpty() ? QStringLiteral("") : QString::fromUtf8(line);
  return Done;
}

bool isFetchable(const QUrl &url) {
  const QString scheme = url.scheme();
  return url.isValid() && !url.host().isEmpty() &&
         (scheme == QLatin1String("http") || scheme == QLatin1String("https"));
}

/// 0, or the exit status of a command line that says nothing sensible.
int readArguments(int count, char **words, FetchArguments *arguments) {
  constexpr int passwordFileOption = 256;
  constexpr std::array<option, 3> longOptions{
      {{"password-file", required_argument, nullptr, passwordFileOption},
       {"user", required_argument, nullptr, 'u'},
       {nullptr, 0, nullptr, 0}}};
  opterr = 0;
  for (int option;
       (option = getopt_long(count, words, ":u:", longOptions.data(), nullptr)) != -1;) {
    switch (option) {
      case 'u':
        arguments->user = *optarg == '\0' ? QStringLiteral("") : QString::fromUtf8(optarg);
        break;
      case passwordFileOption:
        if (const int status = readPassword(optarg, &arguments->password)) return status;
        break;
      case ':':
        return misuse("fetch", "-u takes a user, --password-file a file");
      default:
        return misuse("fetch", "there is no such option");
    }
  }
  if (count - optind != 1) return misuse("fetch", "give one URL");
  arguments->url = QUrl(QString::fromUtf8(words[optind]));
  if (isFetchable(arguments->url)) return Done;
  return misuse(words[optind],
                "this is no URL that begins with http:// or https:// and names a host");
}

}  // namespace

}  // namespace orvek::device

int orvekDeviceCommand(int count, char **words, orvek::device::Output output) {
  using namespace orvek::device;
  FetchArguments arguments;
  if (const int status = readArguments(count, words, &arguments)) return status;
  const QByteArray document =
      GetURLWithAuthentication(arguments.url, arguments.user, arguments.password);
  const auto size = static_cast<std::size_t>(document.size());
  return writeText(output, {document.constData(), size});
}
