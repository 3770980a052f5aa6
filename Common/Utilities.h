// SPDX-License-Identifier: Apache-2.0
// What panels of the printer family share. The sections, each with the source that holds it:
//   1. The printer description     DriverContext.cpp
//   2. Reaching the printer        PrinterAddress.cpp, Reachability.cpp
//   3. Documents from the printer  Fetch.cpp
//   4. Values out of XML           XMLQueries.cpp
//   5. The system's version        SystemVersion.cpp
// The default selection of a pop-up is in DefaultSelection.h. Strings are QString, null where
// absent; an absent (null or empty) object is never an error.
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <pugixml.hpp>

#include "platform/printing/PPD.h"
#include "platform/printing/Printer.h"

// 1. The printer description ---------------------------------------------------------------------

/// The model number: the first run of decimal digits in the value of the PPD attribute "ModelName"
/// (any specifier), as a signed 32-bit number without leading zeros. A sign before it is not part
/// of it; a run beyond 32 bits gives the largest number. "0" for a name without digits; "0000"
/// without a PPD or the attribute, and for a name that is not valid UTF-8.
QString getDeviceModelNumber(ppd_file_t *ppd);

/// Whether the PPD is of the family's own driver: 0 where it has the option "OVKImageSmoothing" or
/// "OVKHasOVRaster" and its manufacturer is exactly "Orvek", else kPMInvalidPDEContext (also for a
/// null PPD, and for one that names no manufacturer).
int MyCheckPDEContextCUPS(ppd_file_t *ppd);

// 2. Reaching the printer ------------------------------------------------------------------------

/// The address of the printer's built-in web server: the text "http://" and the host of its device
/// URI, letter for letter, on the default port. A host that is a DNS-SD service name (it holds
/// "._tcp.local.") is first resolved to the target of its SRV record, which keeps its final dot;
/// that takes up to about 3 seconds. Where it does not resolve the name stays the host. An IPv6
/// address stands in brackets. Null for a null printer, a device without a network host (usb, file
/// ...), and a host that may not stand in a URL: one with blanks or brackets, say. A target that is
/// not ASCII stops the process with an assertion.
QString GetPrinterURLText(PMPrinter printer);

/// The same address as a URL, which normalises its host: in small letters, international names by
/// their IDNA rules, "192.168.1" as the address that it abbreviates. Empty also for texts that have
/// no such form ("host-", "a..b").
QUrl GetPrinterURL(PMPrinter printer);

/// Whether the URL's host answers one ICMP echo request within about a second. False for an empty
/// URL or one without a host; nothing is sent then. With C linkage, as everything about echoes.
extern "C" bool PrinterIsReachable(const QUrl &printer);

// 3. Documents from the printer ------------------------------------------------------------------

/// Fetches a document with GET by HTTP/1.1, following redirections; with basic authentication where
/// a user or a password is not null (the null one counts as empty). Whatever the answer's status,
/// its body is the document. Never null: empty, or what came, where something failed. Ends 2
/// seconds after the last data, and at 1 GiB. Where the server's certificate can't be verified,
/// what GetURLWithAuthentication_SSL gives for the same URL is the result.
QByteArray GetURLWithAuthentication(const QUrl &url, const QString &user, const QString &password);
QByteArray GetURLWithAuthentication_CFNetwork(const QUrl &url, const QString &user,
                                              const QString &password);

/// The same with the URL's first four characters replaced by "https" (so that "http" becomes it,
/// and "https" becomes "httpss", which nothing serves), accepting any certificate and following no
/// redirections. A failed read writes its error to the standard output.
QByteArray GetURLWithAuthentication_SSL(const QUrl &url, const QString &user,
                                        const QString &password);

/// The document's bytes, fetched without authentication; no tree, in spite of the name.
QByteArray MyXMLTreeCreateWithDataFromURL(const QUrl &url);

// 4. Values out of XML ---------------------------------------------------------------------------

/// The first node behind `node` in document order (also outside of its own subtree) whose name is
/// exactly `name`; a null node where there is none. `node` itself is not looked at.
pugi::xml_node XMLTreeFind(pugi::xml_node node, const QString &name);

/// All text below the node that XMLTreeFind gives; null where there is none.
QString GetOVGValue(pugi::xml_node node, const QString &name);

/// `element` where one of its own attributes has this value, else a null node, also where an
/// element further down has such an attribute.
pugi::xml_node XMLTreeFindWithName(pugi::xml_node element, const QString &value);

/// The string of the first child of the node's second child (of its only child where it has one):
/// the content of a text or comment, the name of any other node. Empty where one of these is
/// missing.
QString XMLGetPropertyValue(pugi::xml_node tree);

/// The text without its last character, whatever that is. Empty for an empty text.
QString removeColonFromString(const QString &text);

// 5. The system's version ------------------------------------------------------------------------

/// Always true.
bool RunningOn105OrLater();

/// Whether the system is release 10.7, or 10.10, or later. Asked of the system once, then kept for
/// the process; a system that can't tell counts as 10.4.0.
bool RunningOn107OrLater();
bool RunningOn1010OrLater();
