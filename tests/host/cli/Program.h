// SPDX-License-Identifier: Apache-2.0
// Runs the built orvek-print and keeps what it said.
#pragma once

#include <QByteArrayList>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>

namespace orvek::test {

/// One finished run.
struct ProgramRun {
  /// -1: did not end by itself.
  int status = -1;
  QByteArray output;
  QByteArray errors;

  QJsonObject json() const { return QJsonDocument::fromJson(output).object(); }

  /// The lines that report an error.
  QByteArrayList errorLines() const {
    QByteArrayList lines;
    for (const QByteArray &line : errors.split('\n')) {
      if (line.startsWith("orvek-print: ")) lines << line;
    }
    return lines;
  }
};

/// What a run finds around it.
struct Surroundings {
  /// "NAME=VALUE"; no display is ever among them.
  QStringList environment = {};
  QByteArray input = {};
  QString folder = {};
  /// False: standard input stays open and silent.
  bool closeInput = true;
  QString program = QStringLiteral(ORVEK_BINARY_DIR "/bin/orvek-print");
};

inline ProgramRun runProgram(const QStringList &arguments, const Surroundings &surroundings = {}) {
  QProcess program;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char *display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    environment.remove(QLatin1String(display));
  }
  for (const QString &entry : surroundings.environment) {
    environment.insert(entry.section('=', 0, 0), entry.section('=', 1));
  }
  program.setProcessEnvironment(environment);
  if (!surroundings.folder.isEmpty()) program.setWorkingDirectory(surroundings.folder);
  program.start(surroundings.program, arguments);
  program.write(surroundings.input);
  if (surroundings.closeInput) program.closeWriteChannel();
  constexpr int longestRun = 30000;
  ProgramRun run;
  if (program.waitForFinished(longestRun) && program.exitStatus() == QProcess::NormalExit) {
    run.status = program.exitCode();
  }
  run.output = program.readAllStandardOutput();
  run.errors = program.readAllStandardError();
  return run;
}

inline QString testPpd(const char *name) {
  return QStringLiteral(ORVEK_SOURCE_DIR "/tests/host/ppd/files/") + QLatin1String(name);
}

/// A headless run on a test printer with more arguments.
inline ProgramRun runHeadless(const QStringList &more, const Surroundings &surroundings = {},
                              const char *ppd = "finisher.ppd") {
  return runProgram(QStringList{"--headless", "--ppd", testPpd(ppd)} + more, surroundings);
}

/// Runs a script in the shell. $program is the program on a test printer, without a window.
inline ProgramRun runScript(const QString &script, const QStringList &wrapper = {}) {
  const QString program =
      QStringLiteral("program='%1 --headless --ppd %2'\n")
          .arg(QStringLiteral(ORVEK_BINARY_DIR "/bin/orvek-print"), testPpd("finisher.ppd"));
  QStringList command = wrapper + QStringList{"sh", "-c", program + script};
  Surroundings surroundings;
  surroundings.program = command.takeFirst();
  return runProgram(command, surroundings);
}

}  // namespace orvek::test
