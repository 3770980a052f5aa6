// SPDX-License-Identifier: Apache-2.0
// The driver in jobs into a file: it makes booklets there without being installed into CUPS.
#pragma once

#include <QMap>
#include <QString>
#include <memory>

#include "host/jobs/ScratchFile.h"
#include "platform/system/Result.h"

namespace orvek {

/// Where the driver's program may lie. Plain data.
struct DriverPlaces {
  /// This program's own folder, in a build tree or below a prefix, wherever that was moved to.
  QString programFolder;
  /// The print server's programs, filters in a folder of their own; null: none.
  QString serverFolder;

  static DriverPlaces ofThisProgram();
};

/// The name of the driver's program, as PPDs name it.
QString bookletDriverName();

/// The path of the driver's program, that of a build tree before any that is installed; null where
/// there is none.
QString findBookletDriver(const DriverPlaces &places);

/// The same; a failure where there is none.
Result<QString> requiredBookletDriver(const DriverPlaces &places);

/// Whether the driver would make a booklet of a job with these options.
bool asksForBooklet(const QMap<QString, QString> &options);

/// Whom a PPD leaves documents to.
enum class NamedDriver {
  /// It names the driver, by name or by path.
  Ours,
  /// It names no filter that has a part in documents, though its printer makes booklets.
  NoneForBooklets,
  /// Anything else; also a PPD that can't be read.
  Other
};

NamedDriver driverNamedIn(const QString &ppdFile);

/// The PPD that one job's filters are chosen by. Where it is a copy, the object owns that, and
/// it goes with it. What fails is a value of of(). Use it on one thread at a time.
class ChainPPD {
 public:
  /// A PPD is ours to rewrite if it names the driver without saying where it is, or, for a printer
  /// that makes booklets, names no filter at all. Its copy names the driver by its path where
  /// `options` ask for a booklet, and else no filter: standard filters do the same without the
  /// driver, wherever it is. Any other PPD is taken as it stands, one that can't be read, too.
  ///
  /// Failures: a booklet is asked for and the driver is in none of `places`; the copy can't be
  /// written.
  static Result<ChainPPD> of(const QString &ppdFile, const QMap<QString, QString> &options,
                             const DriverPlaces &places);

  /// Absolute.
  QString path() const;

 private:
  explicit ChainPPD(const QString &original) : m_original(original) {}
  static Result<ChainPPD> copied(const QString &ppdFile, const QByteArray &text);

  QString m_original;
  std::unique_ptr<ScratchFile> m_copy;
};

}  // namespace orvek
