// SPDX-License-Identifier: Apache-2.0
// A plug-in bundle: a folder with an information dictionary, code, and resources by language.
//
//   NAME.bundle/Info.json                     information dictionary
//   NAME.bundle/LANG.lproj/Localizable.json   texts by key
//   NAME.bundle/LANG.lproj/VIEW.ui            interface resources
//   NAME.bundle/PICTURE.png, PICTURE@2x.png   pictures
#pragma once

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

namespace orvek {

/// Counted: whoever keeps a bundle keeps a shared_ptr to it. Belongs to one thread, the
/// interface's. What it lacks is null, and no call fails.
class Bundle : public std::enable_shared_from_this<Bundle> {
 public:
  /// The bundle at `path`; null where there is no such folder. A damaged or missing Info.json gives
  /// a bundle without an information dictionary. `languages` are tried in order (empty: the
  /// user's).
  static std::shared_ptr<Bundle> atPath(const QString &path, const QStringList &languages = {});

  const QString &path() const { return m_path; }
  const std::optional<QJsonObject> &infoDictionary() const { return m_info; }

  /// Why there is no information dictionary, in words; null where there is one.
  const QString &infoProblem() const { return m_infoProblem; }

  /// The text for `key` in the default table; the key itself where the table lacks it.
  QString localizedString(const QString &key) const;

  /// The file NAME.TYPE: of the language's folder, of the English one, of the bundle itself; the
  /// first that exists. Without a type `name` is the whole file name. Null: none.
  QString pathForResource(const QString &name, const QString &type) const;

  /// The only file of that type among all that pathForResource() looks through, each name counted
  /// once; null where there is none, or a choice.
  QString pathForOnlyResource(const QString &type) const;

 private:
  Bundle(QString path, const QStringList &languages);
  void readInfo();
  void readStrings() const;

  QString m_path;
  // Absolute, in the order of look-up.
  QStringList m_folders;
  std::optional<QJsonObject> m_info;
  QString m_infoProblem;
  // Read when first asked for.
  mutable std::optional<QHash<QString, QString>> m_strings;
};

/// The null-safe vocabulary: an absent bundle has no texts (null), no resources (null), no
/// dictionary.
QString localizedString(const Bundle *bundle, const QString &key);
QString pathForResource(const Bundle *bundle, const QString &name, const QString &type);
std::optional<QJsonObject> infoDictionary(const Bundle *bundle);

}  // namespace orvek
