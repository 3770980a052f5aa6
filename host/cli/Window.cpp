// SPDX-License-Identifier: Apache-2.0
// The order of a run with a window.

#include "host/cli/Window.h"

#include <QFileInfo>

#include "host/cli/Headless.h"
#include "host/cli/PrintJob.h"
#include "host/cli/SessionStart.h"
#include "host/jobs/Document.h"

namespace orvek {
namespace {

QString nameOf(const QString &file) {
  return file == QLatin1String("-") ? documentName(file) : QFileInfo(file).fileName();
}

QString namesOf(const QStringList &files) {
  const QString first = nameOf(files.isEmpty() ? QStringLiteral("-") : files.first());
  if (files.size() < 2) return first;
  return PrintDialog::tr("%1 and %2 more").arg(first).arg(files.size() - 1);
}

Status checkDocuments(const QStringList &files) {
  for (const QString &file : files) {
    if (Status checked = checkDocument(file); !checked) return checked;
  }
  return {};
}

}  // namespace

DialogSetup dialogSetupFor(const CommandLine &line) {
  DialogSetup setup;
  setup.documentName = line.title.isNull() ? namesOf(line.files) : line.title;
  setup.jobRequest = [&line](const PrintSession &session) { return jobRequestFor(line, session); };
  return setup;
}

Status runWindow(const CommandLine &line) {
  if (Status checked = checkDocuments(line.files); !checked) return checked;
  Result<std::unique_ptr<PrintSession>> started = startSession(line);
  if (!started) return started.failure();
  PrintSession &session = *started.value();
  if (Status done = runActions(line, session); !done) return done;
  {
    PrintDialog dialog(session, dialogSetupFor(line));
    dialog.exec();
  }
  if (Status written = saveAndWrite(line, session); !written) return written;
  return printState(line, session);
}

}  // namespace orvek
