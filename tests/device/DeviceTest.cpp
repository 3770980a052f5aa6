// SPDX-License-Identifier: Apache-2.0
// orvek-device as its users call it: what it prints where, and its exit statuses.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "tests/Common/support/HttpServer.h"
#include "tests/Common/support/OwnNetwork.h"
#include "tests/Common/support/Responder.h"

using namespace orvek::test;

namespace {

struct Outcome {
  int status = -1;
  std::string output;
  std::string errors;
};

std::string contents(const std::string &path) {
  std::ifstream file(path);
  std::stringstream text;
  text << file.rdbuf();
  return text.str();
}

class Device : public testing::Test {
 protected:
  std::string path(const std::string &name) const {
    return folder.path().toStdString() + "/" + name;
  }

  void write(const std::string &name, const std::string &text) const {
    std::ofstream(path(name)) << text;
  }

  /// Runs it with `words`, as a shell reads them.
  Outcome run(const std::string &words, const std::string &environment = {}) const {
    return runProgram(environment + ORVEK_DEVICE, words);
  }

  Outcome runProgram(const std::string &program, const std::string &words) const {
    const int status = std::system(
        (program + " " + words + " >" + path("out") + " 2>" + path("err") + " </dev/null").c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contents(path("out")),
            contents(path("err"))};
  }

  /// What a terminal is given.
  std::string shownOnTerminal(const std::string &words) const {
    const int screen = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
    EXPECT_EQ(::grantpt(screen), 0);
    EXPECT_EQ(::unlockpt(screen), 0);
    const std::string name = ::ptsname(screen);
    const int line = ::open(name.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    termios raw{};
    ::cfmakeraw(&raw);
    EXPECT_EQ(::tcsetattr(line, TCSANOW, &raw), 0);
    EXPECT_EQ(std::system((ORVEK_DEVICE " " + words + " >" + name).c_str()), 0);
    std::array<char, 4096> bytes{};
    const ssize_t size = ::read(screen, bytes.data(), bytes.size());
    ::close(line);
    ::close(screen);
    return {bytes.data(), size > 0 ? static_cast<std::size_t>(size) : 0};
  }

  void expectMisuse(const std::string &words) const {
    const Outcome result = run(words);
    EXPECT_EQ(result.status, 2) << words;
    EXPECT_EQ(result.output, "") << words;
    EXPECT_TRUE(result.errors.starts_with("orvek-device: ")) << result.errors;
    EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), 1) << result.errors;
  }

  QTemporaryDir folder;
};

TEST_F(Device, TellsItsCommandsAndItsVersion) {
  for (const char *words : {"--help", "ping --help"}) {
    const Outcome help = run(words);
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.output.find("orvek-device COMMAND"), std::string::npos);
    EXPECT_EQ(help.errors, "");
  }
  EXPECT_EQ(run("--version").output, "orvek-device " ORVEK_VERSION "\n");
}

TEST_F(Device, RefusesBadCommandLinesInOneLine) {
  for (const char *words : {"",
                            "nonsense",
                            "url",
                            "url a b",
                            "ping",
                            "ping -c 0 h",
                            "ping -c x h",
                            "ping -W 0 h",
                            "ping -c",
                            "ping --nonsense h",
                            "mdns a",
                            "mdns a NONSENSE",
                            "mdns a 70000",
                            "mdns a 0",
                            "fetch",
                            "fetch foo",
                            "fetch ftp://h/",
                            "fetch http:///x",
                            "fetch -u",
                            "fetch --password-file /nonexistent http://h/",
                            "xml a"}) {
    expectMisuse(words);
  }
}

TEST_F(Device, SaysNothingThatATerminalWouldObey) {
  const Outcome result = run("\"$(printf 'a\\033[2J\\nb\\302\\233c\\233d')\"");
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.errors,
            "orvek-device: a [2J b c?d: there is no such command (see orvek-device --help)\n");
}

TEST_F(Device, OutlivesANeighbourWhoseServiceTargetIsNoText) {
  NEEDS_OWN_NETWORK();
  const Responder responder(Responder::Place::PrinterByMulticast, [](const Bytes &query, int) {
    return std::vector<Bytes>{serviceReplyTo(query, name({"b\xC3\xBCro"}))};
  });
  const Outcome result = run("url dnssd://Orvek._ipp._tcp.local./");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.errors,
            "orvek-device: dnssd://Orvek._ipp._tcp.local./: what the network answers for this "
            "name is no host's name; ask for the printer's address instead\n");
}

/// The libraries of which a command's loading costs most, as far as a run with `words` loads them.
std::set<std::string> costlyLibrariesIn(const std::string &loaderLog) {
  std::set<std::string> found;
  for (const char *library : {"libQt6Core", "libcups", "libcurl", "libpugixml"}) {
    if (loaderLog.find(std::string("/") + library + ".so") != std::string::npos) {
      found.insert(library);
    }
  }
  return found;
}

TEST_F(Device, LoadsOnlyTheLibrariesThatACommandNeeds) {
  write("a.xml", "<a/>");
  const std::map<std::string, std::set<std::string>> needed{
      {"--help", {}},
      {"ping 127.0.0.1", {}},
      {"mdns nosuch.invalid A", {}},
      {"url socket://10.0.0.7", {"libQt6Core", "libcups"}},
      {"fetch http://127.0.0.1:1/", {"libQt6Core", "libcurl"}},
      {"xml " + path("a.xml") + " a", {"libQt6Core", "libpugixml"}}};
  for (const auto &[words, libraries] : needed) {
    const std::string loaderLog = run(words, "LD_DEBUG=files ").errors;
    ASSERT_NE(loaderLog.find("/libc.so"), std::string::npos) << words;
    EXPECT_EQ(costlyLibrariesIn(loaderLog), libraries) << words;
  }
}

TEST_F(Device, FindsItsCommandsWhereverTheWholeIsMovedTo) {
  const std::string place = path("moved");
  const std::string program = ORVEK_DEVICE;
  const std::string tree = program.substr(0, program.rfind("/bin/"));
  const std::string modules = tree + "/" ORVEK_LIBDIR "/orvek-device";
  ASSERT_EQ(std::system(("mkdir -p " + place + "/bin " + place + "/" ORVEK_LIBDIR " && cp " +
                         program + " " + place + "/bin && cp -R " + modules + " " + place +
                         "/" ORVEK_LIBDIR " && ln -s moved/bin/orvek-device " + path("link"))
                            .c_str()),
            0);
  EXPECT_EQ(runProgram(path("link"), "url socket://h").output, "http://h\n");
  ASSERT_EQ(unlink((place + "/" ORVEK_LIBDIR "/orvek-device/url.so").c_str()), 0);
  const Outcome missing = runProgram(place + "/bin/orvek-device", "url socket://h");
  EXPECT_EQ(missing.status, 1);
  EXPECT_EQ(missing.output, "");
  EXPECT_TRUE(missing.errors.starts_with("orvek-device: url: ")) << missing.errors;
  EXPECT_EQ(std::count(missing.errors.begin(), missing.errors.end(), '\n'), 1);
}

TEST_F(Device, PrintsAPrintersWebAddress) {
  const Outcome found = run("url socket://10.0.0.7:9100");
  EXPECT_EQ(found.status, 0);
  EXPECT_EQ(found.output, "http://10.0.0.7\n");
  EXPECT_EQ(run("url ipp://MyPrinter.Example.COM/").output, "http://MyPrinter.Example.COM\n");
  EXPECT_EQ(run("url ipp://192.168.1/").output, "http://192.168.1\n");
  const Outcome none = run("url 'usb://Orvek/6180?serial=1'");
  EXPECT_EQ(none.status, 1);
  EXPECT_EQ(none.output, "");
}

TEST_F(Device, PrintsTheTextOfTheFirstElement) {
  write("a.xml", "<a>\n<b>x <c>y</c></b><b>z</b><e/></a>");
  const Outcome found = run("xml " + path("a.xml") + " b");
  EXPECT_EQ(found.status, 0);
  EXPECT_EQ(found.output, "x y\n");
  EXPECT_EQ(run("xml " + path("a.xml") + " e").output, "\n");
  EXPECT_EQ(run("xml " + path("a.xml") + " a").output, "\nx yz\n");
}

TEST_F(Device, SaysThatThereIsNoSuchElementOrFile) {
  write("a.xml", "<a/>");
  const Outcome missing = run("xml " + path("a.xml") + " b");
  EXPECT_EQ(missing.status, 1);
  EXPECT_EQ(missing.output, "");
  EXPECT_EQ(run("xml " + path("nosuch.xml") + " b").status, 1);
}

TEST_F(Device, PrintsNothingOfADocumentThatIsNotWellFormed) {
  write("a.xml", "<a>\n<b>x</b>\n</c>");
  const Outcome broken = run("xml " + path("a.xml") + " b");
  EXPECT_EQ(broken.status, 3);
  EXPECT_EQ(broken.output, "");
  EXPECT_NE(broken.errors.find("a.xml:3: "), std::string::npos) << broken.errors;
}

TEST_F(Device, FetchesADocumentWithTheUserAndTheFilesFirstLine) {
  HttpServer server(
      [](const HttpConnection &connection, const std::string &, const std::atomic<bool> &) {
        connection.send(httpAnswer(std::string("bytes\0and\n", 10)));
      });
  write("password", "secret\r\nsecond line\n");
  const Outcome fetched =
      run("fetch -u admin --password-file " + path("password") + " " + server.url());
  EXPECT_EQ(fetched.status, 0);
  EXPECT_EQ(fetched.output, std::string("bytes\0and\n", 10));
  EXPECT_NE(server.requests().at(0).find("Authorization: Basic YWRtaW46c2VjcmV0\r\n"),
            std::string::npos);
}

TEST_F(Device, ShowsADocumentOnATerminalThatDoesNotObeyIt) {
  const std::string document("a\x1b[2J\tb\r\n\0\x9b\u202ec\n", 16);
  HttpServer server([&](const HttpConnection &connection, const std::string &,
                        const std::atomic<bool> &) { connection.send(httpAnswer(document)); });
  EXPECT_EQ(shownOnTerminal("fetch " + server.url()), "a [2J\tb \n ? c\n");
  EXPECT_EQ(run("fetch " + server.url()).output, document);
}

TEST_F(Device, ShowsAnElementOnATerminalThatDoesNotObeyIt) {
  write("a.xml", "<a>x\n&#x9b;2J&#x202e;y</a>");
  EXPECT_EQ(shownOnTerminal("xml " + path("a.xml") + " a"), "x\n 2J y\n");
  EXPECT_EQ(run("xml " + path("a.xml") + " a").output, "x\n\u009b2J\u202ey\n");
}

TEST_F(Device, SaysThatItsOutputBecameTooLarge) {
  write("a.xml", "<a>" + std::string(4096, 'x') + "</a>");
  const Outcome cut = runProgram("ulimit -f 1; " ORVEK_DEVICE, "xml " + path("a.xml") + " a");
  EXPECT_EQ(cut.status, 1);
  EXPECT_EQ(cut.errors, "orvek-device: standard output: File too large\n");
}

TEST_F(Device, FetchesAnEmptyDocumentWithoutComplaint) {
  const Outcome empty = run("fetch http://127.0.0.1:1/");
  EXPECT_EQ(empty.status, 0);
  EXPECT_EQ(empty.output, "");
}

TEST_F(Device, PingsInSilence) {
  NEEDS_OWN_NETWORK();
  for (const char *words :
       {"ping 10.99.0.1", "ping -c 3 -W 100 10.99.0.1", "ping --all -W 50 10.99.0.1"}) {
    const Outcome reached = run(words);
    EXPECT_EQ(reached.status, 0) << words;
    EXPECT_EQ(reached.output + reached.errors, "") << words;
  }
}

TEST_F(Device, SaysWhyAHostWasNotReached) {
  NEEDS_OWN_NETWORK();
  const Outcome silent = run("ping 10.99.0.77");
  EXPECT_EQ(silent.status, 1);
  EXPECT_EQ(silent.errors, "orvek-device: 10.99.0.77: no reply\n");
  const Outcome unknown = run("ping nosuch.invalid");
  EXPECT_EQ(unknown.status, 2);
  EXPECT_EQ(unknown.errors, "orvek-device: nosuch.invalid: unknown host\n");
}

TEST_F(Device, NamesTheSettingThatForbidsItToPing) {
  NEEDS_OWN_NETWORK();
  constexpr const char *setting = "/proc/sys/net/ipv4/ping_group_range";
  const std::string before = contents(setting);
  std::ofstream range(setting);
  range << "1 0";
  range.close();
  if (!range.good()) GTEST_SKIP() << "only root can leave out every group";
  const Outcome refused = run("ping 127.0.0.1");
  std::ofstream(setting) << before;
  EXPECT_EQ(refused.status, 1);
  EXPECT_NE(refused.errors.find("net.ipv4.ping_group_range"), std::string::npos);
  EXPECT_EQ(std::count(refused.errors.begin(), refused.errors.end(), '\n'), 1);
}

Bytes variedReply(const Bytes &query) {
  const Bytes service = serviceData(name({"printer", "local"}));
  const Bytes text =
      raw("\x04"
          "a=\"b\x01"
          "\x02");
  return replyTo(query, 3,
                 join(pointer(headerSize), recordHeader(typeSRV, service.size()), service,
                      pointer(headerSize), recordHeader(typeTXT, text.size()), text,
                      pointer(headerSize), recordHeader(99, 3), Bytes{0xDE, 0xAD, 0x01}));
}

TEST_F(Device, PrintsEachAnswerOnALine) {
  NEEDS_OWN_NETWORK();
  Responder responder(Responder::Place::PrinterByMulticast, [](const Bytes &query, int) {
    return std::vector<Bytes>{variedReply(query)};
  });
  const Outcome answered = run("mdns 'My Printer._ipp._tcp.local' ANY");
  EXPECT_EQ(answered.status, 0);
  EXPECT_EQ(answered.output,
            "My Printer._ipp._tcp.local. SRV 1 2 631 printer.local.\n"
            "My Printer._ipp._tcp.local. TXT \"a=\\\"b\" \"\\002\"\n"
            "My Printer._ipp._tcp.local. TYPE99 \\# 3 DEAD01\n");
}

TEST_F(Device, KeepsTheReadersDiagnosticsOffTheStandardOutput) {
  NEEDS_OWN_NETWORK();
  Responder responder(Responder::Place::PrinterByMulticast, [](const Bytes &query, int) {
    return std::vector<Bytes>{replyTo(query, 1, Bytes{9, 'a'})};
  });
  const Outcome broken = run("mdns a.local SRV");
  EXPECT_EQ(broken.status, 1);
  EXPECT_EQ(broken.output, "");
  EXPECT_NE(broken.errors.find("decode error, name extends past end of packet"), std::string::npos);
}

TEST_F(Device, SaysThatNobodyAnswered) {
  NEEDS_OWN_NETWORK();
  const Outcome silent = run("mdns a.local 33");
  EXPECT_EQ(silent.status, 1);
  EXPECT_EQ(silent.errors, "orvek-device: a.local: no answer\n");
}

}  // namespace
