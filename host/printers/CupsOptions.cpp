// SPDX-License-Identifier: Apache-2.0
// Fills libcups' option array from a map.

#include "host/printers/CupsOptions.h"

namespace orvek {

CupsOptions::CupsOptions(const QMap<QString, QString> &options) {
  addMissing(options);
}

CupsOptions::~CupsOptions() {
  cupsFreeOptions(m_count, m_options);
}

void CupsOptions::addMissing(const QMap<QString, QString> &options) {
  for (auto option = options.cbegin(); option != options.cend(); ++option) {
    const QByteArray name = option.key().toUtf8();
    if (value(name.constData())) continue;
    m_count =
        cupsAddOption(name.constData(), option.value().toUtf8().constData(), m_count, &m_options);
  }
}

QMap<QString, QString> CupsOptions::all() const {
  QMap<QString, QString> options;
  for (int i = 0; i < m_count; ++i) {
    options.insert(QString::fromUtf8(m_options[i].name), QString::fromUtf8(m_options[i].value));
  }
  return options;
}

}  // namespace orvek
