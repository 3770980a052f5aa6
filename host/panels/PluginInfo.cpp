// SPDX-License-Identifier: Apache-2.0
// The checks between finding a bundle and trusting its code.

#include "host/panels/PluginInfo.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include "platform/plugin/PDEPlugin.h"

namespace orvek {
namespace {

Failure invalid(const QString &what, const Phrase &why) {
  return {FailureKind::Invalid, what, why};
}

bool isIdentifier(const QString &name) {
  static const QRegularExpression identifier(QStringLiteral("\\A[A-Za-z_][A-Za-z0-9_]*\\z"));
  return identifier.match(name).hasMatch();
}

Status checkInterface(const QJsonObject &info, const QString &infoPath) {
  const QJsonValue version = info.value(QLatin1String("PluginInterface"));
  if (!version.isDouble()) {
    return invalid(infoPath, Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                                      "\"PluginInterface\" must be a number")));
  }
  if (version.toDouble() == pluginInterfaceVersion) return {};
  return invalid(
      infoPath,
      Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                               "made for plug-in interface %1, this program has %2: "
                               "install the plug-in that belongs to it"),
             {QString::number(version.toDouble()), QString::number(pluginInterfaceVersion)}));
}

// A name with a folder in it, or a link, could lead to code that is not the bundle's.
bool liesInside(const QString &bundlePath, const QString &name) {
  if (name.contains(QLatin1Char('/')) || name.startsWith(QLatin1Char('.'))) return false;
  const QString root = QFileInfo(bundlePath).canonicalFilePath() + QLatin1Char('/');
  const QString target = QFileInfo(QDir(bundlePath).filePath(name)).canonicalFilePath();
  return target.isEmpty() || target.startsWith(root);
}

Result<QString> checkedExecutable(const QJsonObject &info, const Bundle &bundle,
                                  const QString &infoPath) {
  const QString name = info.value(QLatin1String("Executable")).toString();
  if (name.isEmpty()) {
    return invalid(infoPath,
                   Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                            "\"Executable\" must name the plug-in's code file")));
  }
  if (!liesInside(bundle.path(), name)) {
    return invalid(
        infoPath,
        Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                 "\"Executable\" must be a file inside the bundle, not \"%1\""),
               {name}));
  }
  const QString path = QDir(bundle.path()).filePath(name);
  if (!QFileInfo(path).isFile()) {
    return invalid(path,
                   Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the plug-in's code is missing")));
  }
  return path;
}

}  // namespace

Result<PluginInfo> readPluginInfo(const QString &bundlePath) {
  const std::shared_ptr<Bundle> bundle = Bundle::atPath(bundlePath);
  if (!bundle) {
    return invalid(bundlePath, Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                                        "no such plug-in bundle (a folder)")));
  }
  const QString infoPath = QDir(bundlePath).filePath(QStringLiteral("Info.json"));
  if (!bundle->infoDictionary()) return invalid(infoPath, bundle->infoProblem());
  const QJsonObject &info = *bundle->infoDictionary();

  if (const Status interface = checkInterface(info, infoPath); !interface) {
    return interface.failure();
  }
  const QString principalClass = info.value(QLatin1String("PrincipalClass")).toString();
  if (!isIdentifier(principalClass)) {
    return invalid(infoPath,
                   Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                            "\"PrincipalClass\" must name the plug-in's class")));
  }
  const Result<QString> executable = checkedExecutable(info, *bundle, infoPath);
  if (!executable) return executable.failure();
  const QString identifier = info.value(QLatin1String("Identifier")).toString(bundle->path());
  return PluginInfo{bundle, identifier, principalClass, executable.value()};
}

}  // namespace orvek
