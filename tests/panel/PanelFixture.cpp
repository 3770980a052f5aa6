// SPDX-License-Identifier: Apache-2.0
// The recording hosts and the fixture around one panel.

#include "tests/panel/PanelFixture.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTest>
#include <utility>

namespace orvek::test {

RecordingHost::RecordingHost(ppd_file_t *ppd, std::shared_ptr<Ticket> ticket) : m_ppd(ppd) {
  if (ticket) settings = std::make_unique<PrintSettings>(std::move(ticket));
}

ppd_file_t *RecordingHost::ppdFile() {
  calls << QStringLiteral("ppdFile");
  return m_ppd;
}

PMPrintSession RecordingHost::printSession() {
  calls << QStringLiteral("printSession");
  return nullptr;
}

PMPrintSettings RecordingHost::printSettings() {
  calls << QStringLiteral("printSettings");
  return settings.get();
}

bool RecordingHost::willChangePPDOptionKeyValue_ppdChoice(const QString &key,
                                                          const QString &choice) {
  announced.append({key, choice});
  if (choice.isNull() || m_ppd == nullptr) return false;
  ppdMarkOption(m_ppd, key.toLatin1().constData(), choice.toLatin1().constData());
  return true;
}

void PanelFixture::create(PPDHandle handle, HostKind kind) {
  panel.reset();
  ppd = std::move(handle);
  if (kind == HostKind::Resizing) {
    host = std::make_shared<ResizingHost>(ppd.get(), ticket);
  } else {
    host = std::make_shared<RecordingHost>(ppd.get(), ticket);
  }
  panel = OrvekFinishing::initWithCallback_andBundle(host, bundle);
}

void PanelFixture::openHandle(PPDHandle handle, HostKind kind) {
  create(std::move(handle), kind);
  panel->panelView();
}

void PanelFixture::open(const PPDText &text, HostKind kind) {
  PPDHandle handle = openPPD(text);
  ASSERT_TRUE(handle) << text.text().constData();
  openHandle(std::move(handle), kind);
}

void PanelFixture::show() {
  panel->restoreValuesAndReturnError(nullptr);
  panel->willShow();
  host->announced.clear();
}

QString PanelFixture::ticketText(const char *key) const {
  return textReading(ticket->value(QLatin1String(key)));
}

QString PanelFixture::selection(const char *name) const {
  for (const auto &[group, keyword] : panel->inspectedSelections()) {
    if (group == QLatin1String(name)) return keyword;
  }
  ADD_FAILURE() << "no selection is called " << name;
  return {};
}

void PanelFixture::pick(const char *popUpName, int index) {
  selectItemAtIndex(popUp(popUpName), index);
  sendAction(popUp(popUpName));
}

void PanelFixture::click(const char *boxName, int state) {
  setState(box(boxName), state);
  sendAction(box(boxName));
}

void PanelFixture::type(const char *fieldName, const QString &text) {
  field(fieldName)->selectAll();
  QTest::keyClick(field(fieldName), Qt::Key_Delete);
  QTest::keyClicks(field(fieldName), text);
}

QString asText(const Announced &announced) {
  QStringList parts;
  for (const auto &[key, choice] : announced) {
    parts << key + QLatin1Char('=') + (choice.isNull() ? QStringLiteral("-") : choice);
  }
  return parts.join(QLatin1Char(' '));
}

BundleCopy::BundleCopy() {
  const QDir from(QStringLiteral(ORVEK_BUNDLE_DIR));
  QDirIterator files(from.path(), QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString file = from.relativeFilePath(files.next());
    QDir(path()).mkpath(QFileInfo(file).path());
    const QString target = QDir(path()).filePath(file);
    if (file.endsWith(QLatin1String(".png"))) {
      // Pictures are the most of a bundle, and no test writes one.
      QFile::link(from.filePath(file), target);
      continue;
    }
    QFile::copy(from.filePath(file), target);
    QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
  }
}

std::shared_ptr<Bundle> BundleCopy::open(const QStringList &languages) const {
  return Bundle::atPath(path(), languages);
}

void BundleCopy::remove(const QString &file) const {
  QFile::remove(QDir(path()).filePath(file));
}

void BundleCopy::write(const QString &file, const QByteArray &content) const {
  QFile target(QDir(path()).filePath(file));
  if (target.open(QIODevice::WriteOnly)) target.write(content);
}

QByteArray BundleCopy::read(const QString &file) const {
  QFile source(QDir(path()).filePath(file));
  return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

}  // namespace orvek::test
