// SPDX-License-Identifier: Apache-2.0
// Loads the compiled texts that lie in the program itself.

#include "host/translations/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

// A static library's resources are left out by the linker unless somebody asks for them; the macro
// does not work inside a namespace.
static void useResources() {
  Q_INIT_RESOURCE(translations);
}

namespace orvek {
namespace {

void install(const QString &name, const QString &folder) {
  auto *translator = new QTranslator(QCoreApplication::instance());
  if (translator->load(QLocale(), name, QStringLiteral("_"), folder)) {
    QCoreApplication::installTranslator(translator);
  } else {
    delete translator;
  }
}

}  // namespace

void installTranslations() {
  useResources();
  install(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  install(QStringLiteral("orvek-print"), QStringLiteral(":/translations"));
}

}  // namespace orvek
