// SPDX-License-Identifier: Apache-2.0
// Opens PPD files and says in one line what is wrong with one that does not open.

#include "host/ppd/PrinterDescription.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <utility>

#include "host/ppd/StandardNames.h"
#include "platform/printing/PPD.h"

namespace orvek {
namespace {

constexpr int languageLetters = 2;
constexpr const char *equipmentGroup = "InstallableOptions";

// libcups has one answer for a file it can't read and for one that is no PPD, so reading is tried
// first.
Status checkReadable(const QString &path) {
  if (QFileInfo(path).isDir()) {
    return Failure{FailureKind::Io, path,
                   Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "is a folder, not a PPD file"))};
  }
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return Failure{FailureKind::Io, path, Phrase::ofSystem(file.errorString())};
  }
  return {};
}

Failure invalidDescription(const QString &path) {
  int line = 0;
  const ppd_status_t status = ppdLastError(&line);
  const QString what = line > 0 ? path + QLatin1Char(':') + QString::number(line) : path;
  return {FailureKind::Invalid, what,
          Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "not a valid PPD file (%1)"),
                 {Phrase::ofSystem(QString::fromUtf8(ppdErrorString(status)))})};
}

// Whether an attribute has a text in the language, or in one that some libcups takes for the same.
bool isNamedIn(const char *attribute, const QByteArray &language) {
  static const QList<QPair<QByteArray, QByteArray>> alike{{"ja", "jp"}, {"nb", "no"}, {"no", "nb"}};
  return qstrncmp(attribute, language.constData(), languageLetters) == 0 ||
         std::any_of(alike.begin(), alike.end(), [&](const auto &pair) {
           return language == pair.first &&
                  qstrncmp(attribute, pair.second.constData(), languageLetters) == 0;
         });
}

// ppdLocalize looks up every option and every choice under several names, a tenth of the time that
// a PPD of a thousand options takes to open, also where it has no text in the language.
void localize(ppd_file_t *ppd) {
  const QByteArray language = cupsLangDefault()->language;
  const QByteArray letters =
      language.size() < languageLetters ? "en" : language.left(languageLetters);
  const auto end = ppd->attrs + ppd->num_attrs;
  const bool hasTexts = std::any_of(ppd->attrs, end, [&](const ppd_attr_t *attribute) {
    return isNamedIn(attribute->name, letters);
  });
  if (hasTexts) ppdLocalize(ppd);
}

// libcups itself names the group of options that stand in none.
QString textOf(const ppd_group_t &group, const LocalTexts &texts) {
  const QString name = QString::fromUtf8(group.name);
  const QString own = group.text[0] != '\0' ? QString::fromUtf8(group.text) : name;
  const bool isPlain = own == name || (!texts.isEnglish() && standardNamesAreTranslated() &&
                                       !texts.hasOption(group.name));
  const QString standard = isPlain ? standardGroupName(name) : QString();
  return standard.isNull() ? own : standard;
}

// libcups sorts the options of subgroups into the group itself; the interface has them all the
// same.
bool holds(const ppd_group_t &group, const QByteArray &option) {
  return std::any_of(group.options, group.options + group.num_options,
                     [&](const ppd_option_t &each) {
                       return qstricmp(each.keyword, option.constData()) == 0;
                     }) ||
         std::any_of(group.subgroups, group.subgroups + group.num_subgroups,
                     [&](const ppd_group_t &inner) { return holds(inner, option); });
}

}  // namespace

Result<std::shared_ptr<PrinterDescription>> PrinterDescription::open(const QString &path) {
  // A pipe can be read only once, by the parser itself.
  const QFileInfo info(path);
  if (!info.exists() || info.isFile() || info.isDir()) {
    if (const Status readable = checkReadable(path); !readable) return readable.failure();
  }
  ppd_file_t *ppd = ppdOpenFile(QFile::encodeName(path).constData());
  if (ppd == nullptr) return invalidDescription(path);
  localize(ppd);
  return std::shared_ptr<PrinterDescription>(new PrinterDescription(path, ppd));
}

const PrinterDescription &PrinterDescription::none() {
  static const PrinterDescription nothing({}, nullptr);
  return nothing;
}

PrinterDescription::PrinterDescription(QString path, ppd_file_s *ppd)
    : m_path(std::move(path)), m_ppd(ppd), m_texts(ppd, cupsLangDefault()->language) {}

PrinterDescription::~PrinterDescription() {
  ppdClose(m_ppd);
}

QString PrinterDescription::modelName() const {
  if (m_ppd == nullptr) return {};
  return QString::fromUtf8(m_ppd->nickname != nullptr ? m_ppd->nickname : m_ppd->modelname);
}

void PrinterDescription::append(const ppd_group_s &group, const QString &text,
                                QList<PrinterOptionGroup> *groups) const {
  PrinterOptionGroup found{text, {}};
  found.options.reserve(group.num_options);
  for (int i = 0; i < group.num_options; ++i) {
    found.options.append(PrinterOption(&group.options[i], &m_texts));
  }
  if (!found.options.isEmpty()) groups->append(found);
  for (int i = 0; i < group.num_subgroups; ++i) {
    const ppd_group_t &inner = group.subgroups[i];
    append(inner, text + QStringLiteral(" – ") + textOf(inner, m_texts), groups);
  }
}

QList<PrinterOptionGroup> PrinterDescription::options() const {
  QList<PrinterOptionGroup> groups;
  for (int i = 0; m_ppd != nullptr && i < m_ppd->num_groups; ++i) {
    append(m_ppd->groups[i], textOf(m_ppd->groups[i], m_texts), &groups);
  }
  return groups;
}

PrinterOption PrinterDescription::option(const QString &keyword) const {
  return {ppdFindOption(m_ppd, keyword.toUtf8().constData()), &m_texts};
}

std::optional<OptionChoice> PrinterDescription::spelled(const QString &option,
                                                        const QString &choice) const {
  const PrinterOption found = this->option(option);
  const QString name = found.spelled(choice);
  if (name.isNull()) return std::nullopt;
  return OptionChoice{found.keyword(), name};
}

bool PrinterDescription::isEquipment(const QString &option) const {
  const QByteArray keyword = option.toUtf8();
  for (int i = 0; m_ppd != nullptr && i < m_ppd->num_groups; ++i) {
    const ppd_group_t &group = m_ppd->groups[i];
    if (qstricmp(group.name, equipmentGroup) == 0 && holds(group, keyword)) return true;
  }
  return false;
}

const PlainConstraints *PrinterDescription::plainConstraints() const {
  if (!m_plainConstraints) m_plainConstraints = PlainConstraints::of(*this);
  return m_plainConstraints->has_value() ? &**m_plainConstraints : nullptr;
}

const ConstrainedPairs &PrinterDescription::constrainedPairs() const {
  if (!m_constrainedPairs) m_constrainedPairs = ConstrainedPairs::of(m_ppd);
  return *m_constrainedPairs;
}

QString PrinterDescription::attribute(const char *keyword) const {
  const ppd_attr_t *found = ppdFindAttr(m_ppd, keyword, nullptr);
  return found == nullptr ? QString() : QString::fromUtf8(found->value);
}

}  // namespace orvek
