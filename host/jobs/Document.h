// SPDX-License-Identifier: Apache-2.0
// The documents of a job by name, standard input among them. Says which names are good before
// anything of the job exists.
#pragma once

#include <QString>
#include <QStringList>

#include "platform/system/Result.h"

namespace orvek {

/// The name that stands for standard input where documents are named: "-".
QString standardInput();

/// Whether a document's name stands for standard input.
bool isStandardInput(const QString &file);

/// The name that messages use for a document.
Phrase documentName(const QString &file);

/// The failure of a job whose document has no bytes.
Failure emptyDocument(const QString &file);

/// Whether it is that failure, of whatever document.
bool isEmptyDocument(const Failure &failure);

/// Whether a document's bytes come once only: those of standard input, a pipe or a device.
bool comesOnce(const QString &file);

/// Whether a job's documents can be read: they exist, are neither folders nor empty files, and may
/// be opened. Nothing is taken from those that come once. Standard input may be among them once.
Status checkAllDocuments(const QStringList &files);

/// Size in bytes, or -1 where the document is no plain file.
qint64 documentSize(const QString &file);

}  // namespace orvek
