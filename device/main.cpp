// SPDX-License-Identifier: Apache-2.0
// orvek-device: the device utilities at the command line. Keeps the standard output for results.

#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <string_view>

#include "device/CommandModule.h"
#include "device/Commands.h"
#include "platform/system/FileSizeLimit.h"

namespace orvek::device {
namespace {

constexpr const char *helpText =
    "Usage: orvek-device COMMAND [OPTION]... ARGUMENT...\n"
    "Reach printers over the network.\n"
    "\n"
    "  url DEVICE-URI                 print the address of the printer's web server\n"
    "  ping [-c COUNT] [-W MS] [--all] HOST\n"
    "                                 ask whether the host answers ICMP echo requests;\n"
    "                                 1 request and 200 ms unless given; --all goes on\n"
    "                                 receiving after the first datagram\n"
    "  mdns NAME TYPE                 print the answers to a DNS query, by multicast for\n"
    "                                 names under \"local\"; TYPE is SRV, TXT, A, PTR, ANY\n"
    "                                 or a number\n"
    "  fetch [-u USER] [--password-file FILE] URL\n"
    "                                 print a document; the file's first line is the\n"
    "                                 password\n"
    "  xml FILE NAME                  print the text of the first element called NAME;\n"
    "                                 FILE \"-\" is the standard input\n"
    "\n"
    "  --help, --version              print this, or the version\n"
    "\n"
    "Exit status: 0 done or reachable; 1 none, or not reachable; 2 bad argument, or unknown\n"
    "host; 3 not well-formed XML.\n";

constexpr std::array<const char *, 5> commands{"url", "ping", "mdns", "fetch", "xml"};

/// Takes the standard output for results and leads everybody else's to the standard error.
Output takeStandardOutput() {
  const int own = dup(STDOUT_FILENO);
  std::FILE *file = own < 0 ? nullptr : fdopen(own, "w");
  dup2(STDERR_FILENO, STDOUT_FILENO);
  return {file};
}

bool isHelp(std::string_view word) {
  return word == "--help" || word == "-h";
}

int dispatch(int count, char **words, Output output) {
  if (count < 2) return misuse(nullptr, "no command is given");
  const std::string_view name = words[1];
  if (isHelp(name) || (count > 2 && isHelp(words[2]))) {
    std::fputs(helpText, output.file);
    return Done;
  }
  if (name == "--version") {
    std::fputs("orvek-device " ORVEK_VERSION "\n", output.file);
    return Done;
  }
  for (const char *command : commands) {
    if (command == name) return runCommandModule(command, count - 1, words + 1, output);
  }
  return misuse(words[1], "there is no such command");
}

}  // namespace

}  // namespace orvek::device

int main(int count, char **words) {
  using namespace orvek::device;
  orvek::outliveFileSizeLimits();
  const Output output = takeStandardOutput();
  if (output.file == nullptr) return complain(Negative, "standard output", std::strerror(errno));
  int status = dispatch(count, words, output);
  if (std::fclose(output.file) != 0) {
    status = complain(Negative, "standard output", std::strerror(errno));
  }
  std::fflush(stdout);
  return status;
}
