// SPDX-License-Identifier: Apache-2.0
// Looks over a page tree before libqpdf walks it, and makes a new one.

#include "driver/PageTree.h"

#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <set>

namespace orvek::driver {
namespace {

constexpr int deepestTree = 200;

struct Branch {
  QPDFObjectHandle kids;
  int next = 0;
};

Failure malformed(const char *why) {
  return {FailureKind::Io, QStringLiteral("the document"), QString::fromLatin1(why)};
}

bool isBranch(QPDFObjectHandle node) {
  return node.isDictionary() && node.getKey("/Kids").isArray();
}

Status checkTree(QPDFObjectHandle root) {
  if (!isBranch(root)) return {};
  std::set<QPDFObjGen> seen{root.getObjGen()};
  std::vector<Branch> path{{root.getKey("/Kids")}};
  while (!path.empty()) {
    Branch &branch = path.back();
    if (branch.next >= branch.kids.getArrayNItems()) {
      path.pop_back();
      continue;
    }
    QPDFObjectHandle kid = branch.kids.getArrayItem(branch.next++);
    if (!isBranch(kid)) continue;
    if (kid.isIndirect() && !seen.insert(kid.getObjGen()).second) {
      return malformed("its page tree runs in circles");
    }
    if (path.size() >= deepestTree) return malformed("its page tree is nested too deeply");
    path.push_back({kid.getKey("/Kids")});
  }
  return {};
}

}  // namespace

Result<std::vector<QPDFPageObjectHelper>> pagesOf(QPDF &document) {
  if (Status checked = checkTree(document.getRoot().getKey("/Pages")); !checked) {
    return checked.failure();
  }
  return QPDFPageDocumentHelper(document).getAllPages();
}

void replacePages(QPDF &document, const std::vector<QPDFObjectHandle> &pages) {
  QPDFObjectHandle tree = document.makeIndirectObject(QPDFObjectHandle::newDictionary());
  tree.replaceKey("/Type", QPDFObjectHandle::newName("/Pages"));
  tree.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(pages.size())));
  tree.replaceKey("/Kids", QPDFObjectHandle::newArray(pages));
  for (QPDFObjectHandle page : pages) page.replaceKey("/Parent", tree);

  QPDFObjectHandle catalog = QPDFObjectHandle::newDictionary();
  catalog.replaceKey("/Type", QPDFObjectHandle::newName("/Catalog"));
  catalog.replaceKey("/Pages", tree);
  // Says which layers are printed.
  QPDFObjectHandle layers = document.getRoot().getKey("/OCProperties");
  if (layers.isDictionary()) catalog.replaceKey("/OCProperties", layers);
  QPDFObjectHandle trailer = document.getTrailer();
  trailer.replaceKey("/Root", document.makeIndirectObject(catalog));
  // The writer puts the number right, but adds none where a damaged document has none.
  trailer.replaceKey("/Size", QPDFObjectHandle::newInteger(0));
  document.updateAllPagesCache();
}

}  // namespace orvek::driver
