// SPDX-License-Identifier: Apache-2.0
// Looks at owners and rights, from the code up to the root.

#include "host/panels/PluginTrust.h"

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <array>

namespace orvek {
namespace {

constexpr uid_t administrator = 0;
constexpr qsizetype largestRecord = 16384;

Failure refused(const QString &path, const char *why) {
  return {FailureKind::Invalid, path, Phrase(why)};
}

/// Many systems give each user a group of the same name with nobody else in it.
bool isPrivateGroupOf(uid_t owner, gid_t group) {
  std::array<char, largestRecord> userRecord;
  std::array<char, largestRecord> groupRecord;
  passwd user{};
  ::group members{};
  passwd *foundUser = nullptr;
  ::group *foundGroup = nullptr;
  ::getpwuid_r(owner, &user, userRecord.data(), userRecord.size(), &foundUser);
  ::getgrgid_r(group, &members, groupRecord.data(), groupRecord.size(), &foundGroup);
  return foundUser != nullptr && foundGroup != nullptr && user.pw_gid == group &&
         qstrcmp(user.pw_name, members.gr_name) == 0 && *members.gr_mem == nullptr;
}

bool othersMayWrite(const struct stat &entry) {
  if ((entry.st_mode & S_IWOTH) != 0) return true;
  return (entry.st_mode & S_IWGRP) != 0 && !isPrivateGroupOf(entry.st_uid, entry.st_gid);
}

Status checkOwner(const QString &path) {
  struct stat entry {};
  if (::stat(QFile::encodeName(path).constData(), &entry) != 0) return {};
  if (entry.st_uid == administrator || entry.st_uid == ::geteuid()) return {};
  return refused(path, QT_TRANSLATE_NOOP("orvek::Failure",
                                         "belongs to another user, whose code would run as yours; "
                                         "a plug-in must be yours or the administrator's"));
}

Status checkRights(const QString &path) {
  struct stat entry {};
  if (::stat(QFile::encodeName(path).constData(), &entry) != 0) return {};
  // There nobody renames what is somebody else's.
  const bool keepsOwners = S_ISDIR(entry.st_mode) && (entry.st_mode & S_ISVTX) != 0;
  if (keepsOwners || !othersMayWrite(entry)) return {};
  return refused(path, QT_TRANSLATE_NOOP("orvek::Failure",
                                         "can be written by others, whose code would run as yours; "
                                         "take that right from them (chmod go-w)"));
}

Status checkFolders(const QString &bundle) {
  QDir above(bundle);
  do {
    if (Status checked = checkRights(above.path()); !checked) return checked;
  } while (above.cdUp());
  return {};
}

}  // namespace

Status checkNobodyElseWrites(const QString &bundlePath, const QString &executable) {
  // Links lead where somebody else might have put them.
  const QString bundle = QFileInfo(bundlePath).canonicalFilePath();
  const QString info = QDir(bundle).filePath(QStringLiteral("Info.json"));
  const QString code = QFileInfo(executable).canonicalFilePath();
  for (const QString &path : {QFileInfo(bundle).path(), bundle, info, code}) {
    if (Status checked = checkOwner(path); !checked) return checked;
  }
  for (const QString &path : {info, code}) {
    if (Status checked = checkRights(path); !checked) return checked;
  }
  // The folder's name may be a link, which stands in folders of its own.
  if (Status checked = checkFolders(QFileInfo(bundlePath).absolutePath()); !checked) return checked;
  return checkFolders(bundle);
}

}  // namespace orvek
