// SPDX-License-Identifier: Apache-2.0
// The driver as the print system runs it.
#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <string>
#include <vector>

#include "imposition/BookletOptions.h"

namespace orvek::test {

/// The driver's program in the build tree.
QString bookletFilter();

/// A folder with what printing with the driver takes: a PPD of the Orvek 6180 that names the driver
/// by its path, the same without any filter, and room for documents. Whoever CUPS runs filters as
/// may read it; the driver's program lies in it, too, as a build tree may be out of their reach.
class DriverKit {
 public:
  DriverKit();

  QString path(const QString &name) const { return m_folder.filePath(name); }
  QString ppd() const { return path(QStringLiteral("booklet.ppd")); }
  QString plainPPD() const { return path(QStringLiteral("plain.ppd")); }
  QString filter() const { return path(QStringLiteral("orvek-booklet")); }

  /// Adds lines to the PPD that names the driver.
  void addToPPD(const QByteArray &lines) const;

  /// Writes a document into the folder and gives its path.
  QString write(const QString &name, const std::string &contents) const;

 private:
  QTemporaryDir m_folder;
};

/// What a run of filters gave.
struct Printed {
  int exitStatus = -1;
  QByteArray output;
  QStringList messages;

  /// The lines that begin so, without it.
  QStringList lines(const QString &prefix) const;
};

/// What a program gives that was just started, with this on its standard input.
Printed finish(QProcess &process, const QByteArray &input = {});

/// Why no filters can be run on this machine; empty where they can.
QString obstacleToFilters();

/// Prints a file through CUPS' filter tool.
Printed printThrough(const QString &ppd, const QStringList &options, const QString &file);

/// Runs the driver alone, as CUPS does, the document by name or, with an empty name, by standard
/// input. `before` stands in front of the other arguments.
Printed runDriverAlone(const DriverKit &kit, const QString &options, const QString &file,
                       const QByteArray &input = {}, const QStringList &before = {});

/// The same in an environment of its own, the document by name, with a file for the output; an
/// empty one gives it back.
Printed runDriverIn(const QProcessEnvironment &environment, const DriverKit &kit,
                    const QString &options, const QString &file, const QString &output = {});

/// PostScript without the moments at which it was made.
QByteArray withoutDates(const QByteArray &postScript);

}  // namespace orvek::test
