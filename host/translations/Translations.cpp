// SPDX-License-Identifier: Apache-2.0
// Loads the compiled texts that lie in the program itself.

#include "host/translations/Translations.h"

#include <QCoreApplication>
#include <QGuiApplication>
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

bool install(const QString &name, const QString &folder) {
  auto *translator = new QTranslator(QCoreApplication::instance());
  const bool isThere = translator->load(QLocale(), name, QStringLiteral("_"), folder);
  if (isThere) {
    QCoreApplication::installTranslator(translator);
  } else {
    delete translator;
  }
  return isThere;
}

}  // namespace

void installTranslations() {
  useResources();
  install(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  // The toolkit takes the direction from its own translations, which may not be installed.
  if (install(QStringLiteral("orvek-print"), QStringLiteral(":/translations"))) {
    QGuiApplication::setLayoutDirection(QLocale().textDirection());
  }
}

}  // namespace orvek
