// SPDX-License-Identifier: Apache-2.0
// A printer of a test's own that speaks IPP Everywhere: the one that CUPS brings for such purposes.
#pragma once

#include <QMap>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace orvek::test {

/// Runs as long as it lives: in color, on both sides, with a few papers; takes PDF, JPEG and
/// raster.
class IppPrinter {
 public:
  IppPrinter();
  ~IppPrinter();
  IppPrinter(const IppPrinter &) = delete;
  IppPrinter &operator=(const IppPrinter &) = delete;

  /// Why there can be none on this machine; empty where there can.
  static QString obstacle();

  /// "ipp://localhost:PORT/ipp/print".
  QString uri() const;

  /// Waits for the printer's job, counted from 1, and gives its attributes.
  QMap<QString, QString> waitForJob(int number) const;

 private:
  void startBus();
  void startPrinter();

  QTemporaryDir m_folder;
  QProcess m_bus;
  QProcess m_printer;
  int m_port;
};

}  // namespace orvek::test
