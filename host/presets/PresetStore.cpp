// SPDX-License-Identifier: Apache-2.0
// Files of presets.

#include "host/presets/PresetStore.h"

#include <QCollator>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>

#include "host/presets/PresetName.h"
#include "host/ticket/TicketFile.h"
#include "host/translations/Advice.h"
#include "platform/system/WholeFile.h"

namespace orvek {
namespace {

Phrase whatOf(const QString &name) {
  return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "preset \"%1\""), {name});
}

Failure ioFailure(const Phrase &what, const Phrase &why) {
  return {FailureKind::Io, what, why};
}

Failure noSuchPreset(const QString &name) {
  return ioFailure(whatOf(name), Phrase(noneOfThatName.atTheCommandLine));
}

/// A file that holds another name than its own was put there by hand; it is not the preset asked
/// for.
Result<Preset> readPreset(const QString &path, const Phrase &where) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return ioFailure(where, Phrase::ofSystem(file.errorString()));
  }
  const Result<QByteArray> json = readSettings(file, where);
  if (!json) return json.failure();
  return presetFromJson(json.value(), where);
}

Failure notMade(const QString &folder) {
  return ioFailure(folder, Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "can't be made")));
}

Status writePreset(const QString &path, const Preset &preset) {
  const QString folder = QFileInfo(path).path();
  if (!QDir().mkpath(folder)) return notMade(folder);
  return writeFile(path, presetToJson(preset));
}

/// Gone already is as well.
Status removed(const QString &path) {
  QFile file(path);
  if (!file.exists() || file.remove()) return {};
  return ioFailure(path, Phrase::ofSystem(file.errorString()));
}

/// Where a file is damaged, replacing it would lose what its owner may still want to mend.
Status checkNotDamaged(const QString &path, const Phrase &what) {
  if (!QFile::exists(path)) return {};
  const auto present = readPreset(path, what);
  if (present) return {};
  return Failure{present.failure().kind, what,
                 Phrase(QT_TRANSLATE_NOOP(
                            "orvek::Failure",
                            "the present one is damaged and left as it is (%1); delete it first"),
                        {present.failure().why})};
}

void sortForPeople(QStringList &names) {
  QCollator order;
  order.setNumericMode(true);
  order.setCaseSensitivity(Qt::CaseInsensitive);
  std::sort(names.begin(), names.end(), order);
}

}  // namespace

PresetStore::PresetStore(const QString &folder)
    : m_presets(folder + QStringLiteral("/presets")),
      m_lastUsed(folder + QStringLiteral("/last-used")),
      m_off(folder + QStringLiteral("/last-used-off")) {}

QString PresetStore::standardFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
         QStringLiteral("/orvek-print");
}

QString PresetStore::fileOf(const QString &name) const {
  return m_presets + u'/' + presetFileName(name);
}

QString PresetStore::lastUsedFileOf(const QString &queue) const {
  return m_lastUsed + u'/' + presetFileName(queue);
}

PresetListing PresetStore::list() const {
  PresetListing listing;
  const QDir folder(m_presets);
  for (const QString &file : folder.entryList({QStringLiteral("*.json")}, QDir::Files)) {
    const QString path = folder.filePath(file);
    const auto preset = readPreset(path, path);
    if (!preset) {
      listing.damaged << preset.failure();
    } else if (presetFileName(preset.value().name) != file) {
      // Put there by hand; load() can't find it.
      listing.damaged << Failure{
          FailureKind::Invalid, path,
          Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "holds a preset of another name: \"%1\""),
                 {preset.value().name})};
    } else {
      listing.names << preset.value().name;
    }
  }
  sortForPeople(listing.names);
  return listing;
}

Result<Preset> PresetStore::load(const QString &name) const {
  if (Status named = checkPresetName(name); !named) return named.failure();
  if (!QFile::exists(fileOf(name))) return noSuchPreset(name);
  return readPreset(fileOf(name), whatOf(name));
}

Status PresetStore::save(const Preset &preset) {
  if (Status named = checkNewPresetName(preset.name); !named) return named;
  const QString path = fileOf(preset.name);
  if (Status present = checkNotDamaged(path, whatOf(preset.name)); !present) return present;
  return writePreset(path, preset);
}

Status PresetStore::rename(const QString &from, const QString &to) {
  if (Status named = checkNewPresetName(to); !named) return named;
  auto preset = load(from);
  if (!preset) return preset.failure();
  if (QFile::exists(fileOf(to)) && fileOf(to) != fileOf(from)) {
    return ioFailure(whatOf(to), Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                                          "there is one of that name already")));
  }
  preset.value().name = to;
  if (Status written = writePreset(fileOf(to), preset.value()); !written) return written;
  return fileOf(to) == fileOf(from) ? Status() : remove(from);
}

Status PresetStore::remove(const QString &name) {
  if (Status named = checkPresetName(name); !named) return named;
  QFile file(fileOf(name));
  if (!file.exists()) return noSuchPreset(name);
  return file.remove() ? Status()
                       : Status(ioFailure(whatOf(name), Phrase::ofSystem(file.errorString())));
}

Result<std::optional<Preset>> PresetStore::lastUsed(const QString &queue) const {
  const QString path = lastUsedFileOf(queue);
  if (!QFile::exists(path)) return std::optional<Preset>();
  auto preset = readPreset(path, path);
  if (!preset) return preset.failure();
  return std::optional<Preset>(preset.take());
}

Status PresetStore::saveLastUsed(const QString &queue, const Preset &preset) {
  const QString path = lastUsedFileOf(queue);
  if (Status present = checkNotDamaged(path, path); !present) return present;
  return writePreset(path, preset);
}

bool PresetStore::remembers() const {
  return !QFile::exists(m_off);
}

// The mark first: what is forgotten after it can't be remembered anew.
Status PresetStore::setRemembers(bool remembers) {
  if (remembers) return removed(m_off);
  const QString folder = QFileInfo(m_off).path();
  if (!QDir().mkpath(folder)) return notMade(folder);
  if (Status written = writeFile(m_off, {}); !written) return written;
  const QDir known(m_lastUsed);
  for (const QString &file : known.entryList({QStringLiteral("*.json")}, QDir::Files)) {
    if (Status forgotten = removed(known.filePath(file)); !forgotten) return forgotten;
  }
  return {};
}

}  // namespace orvek
