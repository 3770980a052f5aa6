// SPDX-License-Identifier: Apache-2.0
// Talks to /dev/tty, whose echo is off meanwhile.

#include "host/cli/TerminalPassword.h"

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>

#include "platform/system/OneLine.h"

namespace orvek {
namespace {

constexpr int pollMilliseconds = 100;
constexpr char interruptKey = '\x03';
constexpr char endOfInputKey = '\x04';
constexpr char eraseLineKey = '\x15';
constexpr char backspaceKey = '\b';
constexpr char deleteKey = '\x7f';

/// The terminal, silent for as long as the object lives.
class SilentTerminal {
 public:
  SilentTerminal() : m_terminal(::open("/dev/tty", O_RDWR | O_NOCTTY | O_CLOEXEC)) {
    // A program in the background would be stopped for touching the terminal.
    m_isUsable = m_terminal >= 0 && ::tcgetpgrp(m_terminal) == ::getpgrp() &&
                 ::tcgetattr(m_terminal, &m_before) == 0;
    if (!m_isUsable) return;
    termios silent = m_before;
    // Without signals: Ctrl-C must not leave a silent terminal behind.
    silent.c_lflag &= ~static_cast<tcflag_t>(ECHO | ICANON | ISIG);
    silent.c_cc[VMIN] = 1;
    silent.c_cc[VTIME] = 0;
    ::tcsetattr(m_terminal, TCSAFLUSH, &silent);
  }

  ~SilentTerminal() {
    if (m_isUsable) {
      write("\n");
      ::tcsetattr(m_terminal, TCSAFLUSH, &m_before);
    }
    if (m_terminal >= 0) ::close(m_terminal);
  }

  SilentTerminal(const SilentTerminal &) = delete;
  SilentTerminal &operator=(const SilentTerminal &) = delete;

  bool isUsable() const { return m_isUsable; }

  void write(const QByteArray &text) const {
    // A prompt that can't be shown is no reason not to read.
    [[maybe_unused]] const ssize_t written =
        ::write(m_terminal, text.constData(), static_cast<size_t>(text.size()));
  }

  /// The next character; nothing at the end, or where cancelled.
  std::optional<char> read(const std::atomic<bool> *cancelled) const {
    while (cancelled == nullptr || !*cancelled) {
      pollfd ready{m_terminal, POLLIN, 0};
      if (::poll(&ready, 1, pollMilliseconds) == 0) continue;
      char character = 0;
      const ssize_t count = ::read(m_terminal, &character, 1);
      if (count == 1) return character;
      if (count == 0 || errno != EINTR) break;
    }
    return std::nullopt;
  }

 private:
  int m_terminal;
  bool m_isUsable = false;
  termios m_before{};
};

void chopCharacter(QByteArray *utf8) {
  const auto isContinuation = [](char byte) { return (byte & '\xc0') == '\x80'; };
  while (!utf8->isEmpty() && isContinuation(utf8->back())) utf8->chop(1);
  utf8->chop(1);
}

/// A line, with the keys that correct it; empty where the user gave up.
QByteArray readLine(const SilentTerminal &terminal, const std::atomic<bool> *cancelled) {
  QByteArray line;
  while (const auto character = terminal.read(cancelled)) {
    switch (*character) {
      case '\r':
      case '\n':
        return line;
      case interruptKey:
      case endOfInputKey:
        return {};
      case eraseLineKey:
        line.clear();
        break;
      case backspaceKey:
      case deleteKey:
        chopCharacter(&line);
        break;
      default:
        line += *character;
    }
  }
  return {};
}

}  // namespace

Result<Credentials> askOnTerminal(const PasswordQuestion &question,
                                  const std::atomic<bool> *cancelled) {
  const SilentTerminal terminal;
  if (!terminal.isUsable()) {
    return Failure{
        FailureKind::Io, question.server,
        QStringLiteral("the print server asks for the password of user \"%1\", and there "
                       "is no terminal to read it from")
            .arg(question.user)};
  }
  const QString prompt =
      QStringLiteral("Password for %1 on %2? ").arg(question.user, question.server);
  terminal.write(QByteArray::fromStdString(oneLine(prompt.toStdString())));
  const QByteArray line = readLine(terminal, cancelled);
  if (!line.isEmpty()) return Credentials{question.user, QString::fromLocal8Bit(line)};
  return Failure{FailureKind::Io, question.server,
                 QStringLiteral("the print server asks for the password of user \"%1\", and none "
                                "was given")
                     .arg(question.user)};
}

}  // namespace orvek
