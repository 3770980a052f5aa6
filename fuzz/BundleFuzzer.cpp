// SPDX-License-Identifier: Apache-2.0
// A plug-in bundle's files: the first byte says which of them the rest is.

#include <QApplication>
#include <QDir>
#include <QRegularExpression>
#include <QWidget>

#include "fuzz/MemoryFolder.h"
#include "fuzz/Quiet.h"
#include "host/panels/PluginInfo.h"
#include "platform/ui/InterfaceResource.h"
#include "platform/ui/ResourceBounds.h"

namespace {

using namespace orvek;
using fuzz::require;
using fuzz::requireReason;

/// Everything that a bundle needs beside the file that is looked at.
void layOutBundle() {
  QDir(fuzz::memoryFolder()).mkpath(QStringLiteral("en.lproj"));
  fuzz::fileOf(QStringLiteral("code.so"), "code", 4);
}

void readInfo(const QByteArray &bytes) {
  fuzz::fileOf(QStringLiteral("Info.json"), bytes.constData(), bytes.size());
  const auto info = readPluginInfo(fuzz::memoryFolder());
  if (!info) {
    require(info.failure().kind == FailureKind::Invalid);
    requireReason(info.failure());
    return;
  }
  static const QRegularExpression identifier(QStringLiteral("\\A[A-Za-z_][A-Za-z0-9_]*\\z"));
  require(identifier.match(info.value().principalClass).hasMatch());
  require(info.value().executable.startsWith(fuzz::memoryFolder() + u'/') &&
          QFile::exists(info.value().executable));
}

void readTexts(const QByteArray &bytes) {
  fuzz::fileOf(QStringLiteral("en.lproj/Localizable.json"), bytes.constData(), bytes.size());
  const auto bundle = Bundle::atPath(fuzz::memoryFolder(), {QStringLiteral("en")});
  require(bundle != nullptr);
  // A key without a text is its own.
  require(bundle->localizedString(QStringLiteral("\x01 no such key")) ==
          QStringLiteral("\x01 no such key"));
  require(!bundle->localizedString(QStringLiteral("Stapling")).isNull());
}

void loadResource(const QByteArray &bytes) {
  fuzz::fileOf(QStringLiteral("en.lproj/View.ui"), bytes.constData(), bytes.size());
  const auto bundle = Bundle::atPath(fuzz::memoryFolder(), {QStringLiteral("en")});
  QObject owner;
  const bool loaded = loadInterface(bundle.get(), QStringLiteral("View"), &owner);
  require(loaded != owner.children().isEmpty());
  require(!loaded || lengthProblem(bytes).isNull());
  for (const QWidget *widget : QApplication::allWidgets()) {
    require(widget->width() <= QWIDGETSIZE_MAX && widget->height() <= QWIDGETSIZE_MAX);
  }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *count, char ***words) {
  qputenv("QT_QPA_PLATFORM", "minimal");
  keepLogQuiet();
  static QApplication application(*count, *words);
  layOutBundle();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  if (size == 0) return 0;
  const QByteArray bytes(reinterpret_cast<const char *>(data + 1),
                         static_cast<qsizetype>(size - 1));
  if (data[0] == 'i') readInfo(bytes);
  if (data[0] == 't') readTexts(bytes);
  if (data[0] == '<') loadResource('<' + bytes);
  return 0;
}
