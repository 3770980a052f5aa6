// SPDX-License-Identifier: Apache-2.0
// The documents of a job, checked before anything of the job exists.
#pragma once

#include <QString>
#include <QTemporaryFile>
#include <memory>

#include "host/jobs/JobRequest.h"
#include "platform/system/Result.h"

namespace orvek {

/// Whether a job's documents can be read: they exist, are no folders, and may be opened. Standard
/// input ("-") always can, and may be among them once.
Status checkAllDocuments(const QStringList &files);

/// The name that messages use for a document.
QString documentName(const QString &file);

/// Size in bytes, or -1 where the document is no plain file.
qint64 documentSize(const QString &file);

/// Standard input copied into a temporary file, which goes away with the object. Holds only one
/// block of it in memory. Empty input is a failure; so is a full disk. Where the job is cancelled,
/// what came so far.
Result<std::unique_ptr<QTemporaryFile>> spoolStandardInput(const JobControl &control);

/// Waits at most a tenth of a second for standard input, then reads what is there, at most
/// `capacity` bytes. The number of bytes; 0 at the end of the input; -1 where nothing came; a
/// failure where it can't be read.
Result<qint64> readStandardInput(char *bytes, qint64 capacity);

}  // namespace orvek
