// SPDX-License-Identifier: Apache-2.0
// Compares every file that is written with every one that is read.

#include "host/cli/OutputCheck.h"

#include <unistd.h>

#include <vector>

#include "host/jobs/Document.h"
#include "host/presets/PresetStore.h"
#include "platform/system/FileIdentity.h"
#include "platform/system/WholeFile.h"

namespace orvek {
namespace {

enum class Role { Document, Description, Ticket, Preset, Other };

struct UsedFile {
  Role role;
  /// For failures.
  QString name;
  std::optional<FileIdentity> identity;
  /// Takes the old file's place as a whole once it is whole itself.
  bool isReplaced = false;
};

using UsedFiles = std::vector<UsedFile>;

void add(UsedFiles *files, Role role, const QString &path) {
  if (path.isNull()) return;
  files->push_back({role, path, FileIdentity::at(path), isReplaceable(path)});
}

void addStream(UsedFiles *files, Role role, const QString &name, int descriptor) {
  files->push_back({role, name, FileIdentity::behind(descriptor)});
}

// Without a name standard input is a document only of those who print, or may yet.
bool readsStandardInput(const CommandLine &line) {
  if (!line.files.isEmpty()) return line.files.contains(standardInput());
  return line.print || !line.output.isNull() || !line.headless;
}

QString fileOfPreset(const QString &name) {
  return name.isNull() ? QString() : PresetStore().fileOf(name);
}

UsedFiles readFiles(const CommandLine &line) {
  UsedFiles files;
  for (const QString &document : line.files) {
    if (!isStandardInput(document)) add(&files, Role::Document, document);
  }
  if (readsStandardInput(line)) {
    addStream(&files, Role::Document, documentName(standardInput()), STDIN_FILENO);
  }
  add(&files, Role::Description, line.ppd);
  add(&files, Role::Ticket, line.ticket);
  add(&files, Role::Preset, fileOfPreset(line.preset));
  return files;
}

UsedFiles writtenFiles(const CommandLine &line) {
  UsedFiles files;
  if (line.output == QLatin1String("-")) {
    addStream(&files, Role::Other, QStringLiteral("standard output"), STDOUT_FILENO);
  } else {
    add(&files, Role::Other, line.output);
  }
  add(&files, Role::Other, line.screenshot);
  add(&files, Role::Ticket, line.ticketOut);
  add(&files, Role::Preset, fileOfPreset(line.savePreset));
  return files;
}

QString nameOf(Role role) {
  switch (role) {
    case Role::Document:
      return QStringLiteral("document");
    case Role::Description:
      return QStringLiteral("printer description");
    case Role::Ticket:
      return QStringLiteral("ticket");
    case Role::Preset:
      return QStringLiteral("preset");
    case Role::Other:
      break;
  }
  return QStringLiteral("file that is read");
}

bool isLost(const UsedFile &read, const UsedFile &written) {
  if (!read.identity || read.identity != written.identity) return false;
  // Settings that were changed may go back to where they came from.
  return read.role != written.role || !written.isReplaced;
}

}  // namespace

Status checkOutputs(const CommandLine &line) {
  const UsedFiles read = readFiles(line);
  for (const UsedFile &output : writtenFiles(line)) {
    for (const UsedFile &input : read) {
      if (!isLost(input, output)) continue;
      return Failure{FailureKind::Io, output.name,
                     QStringLiteral("is the %1 itself, which would be lost; name another file")
                         .arg(nameOf(input.role))};
    }
  }
  return {};
}

}  // namespace orvek
