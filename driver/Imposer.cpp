// SPDX-License-Identifier: Apache-2.0
// From pages to sheets. The one door through which libqpdf's exceptions would leave is here.

#include "driver/Imposer.h"

#include "driver/Qpdf.h"
// Only after it:
#include <algorithm>
#include <exception>
#include <qpdf/Pipeline.hh>
#include <qpdf/Pl_StdioFile.hh>
#include <qpdf/QPDFAcroFormDocumentHelper.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>
#include <vector>

#include "driver/PageForm.h"
#include "driver/PageTree.h"
#include "driver/SheetContents.h"
#include "imposition/Booklet.h"
#include "imposition/HeldSheet.h"

namespace orvek::driver {
namespace {

using imposition::Face;
using imposition::Size;

constexpr Size usualPaper{595, 842};

Failure failure(const QString &why) {
  return {FailureKind::Io, QStringLiteral("the document"), why};
}

Failure unwritten() {
  return failure(QStringLiteral("its sheets can't be written; make room for temporary files"));
}

Failure tooLarge(std::uintmax_t most) {
  return failure(QStringLiteral("its sheets would take more than %1 MB, far more than the document "
                                "itself; print some of its pages at a time")
                     .arg(most >> 20));
}

/// What libqpdf says may quote the document.
QString oneLine(const std::string &text) {
  constexpr qsizetype longest = 200;
  return QString::fromUtf8(text.c_str()).simplified().left(longest);
}

Failure failureOf(const QPDFExc &error) {
  if (error.getErrorCode() == qpdf_e_password) {
    return failure(
        QStringLiteral("it is encrypted with a password; print it from a program that "
                       "opens it with that password"));
  }
  return failure(QStringLiteral("it is damaged beyond repair: ") +
                 oneLine(error.getMessageDetail()));
}

using Pages = std::vector<QPDFPageObjectHelper>;

/// Whether there were any.
bool drawAnnotations(QPDF &document, Pages &pages) {
  const bool areThere = std::any_of(pages.begin(), pages.end(), [](QPDFPageObjectHelper &page) {
    return page.getObjectHandle().hasKey("/Annots");
  });
  if (!areThere) return false;
  QPDFAcroFormDocumentHelper(document).generateAppearancesIfNeeded();
  QPDFPageDocumentHelper(document).flattenAnnotations(an_print);
  return true;
}

/// Has neither operators that draw nor anything to draw.
bool isFiller(QPDFPageObjectHelper page) {
  QPDFObjectHandle forms = page.getAttribute("/Resources", false).getKeyIfDict("/XObject");
  if (forms.isDictionary() && !forms.getKeys().empty()) return false;
  QPDFObjectHandle contents = page.getObjectHandle().getKey("/Contents");
  if (!contents.isStream()) return contents.isNull();
  constexpr std::size_t longest = 64;
  const auto data = contents.getStreamData();
  if (data->getSize() > longest) return false;
  const std::string text(reinterpret_cast<const char *>(data->getBuffer()), data->getSize());
  return text.find_first_not_of("qQ \t\r\n") == std::string::npos;
}

void dropFiller(Pages &pages) {
  const bool isEven = pages.size() % 2 == 0;
  if (isEven && isFiller(pages.front())) pages.erase(pages.begin());
}

/// What is thrown through libqpdf where sheets grow beyond their bound.
struct TooLarge : std::exception {};

/// Hands on what is written, up to a bound.
class BoundedOutput : public Pipeline {
 public:
  BoundedOutput(Pipeline *target, std::uintmax_t most) : Pipeline("sheets", target), m_left(most) {}

  void write(const unsigned char *data, std::size_t size) override {
    if (size > m_left) throw TooLarge();
    m_left -= size;
    getNext()->write(data, size);
  }
  void finish() override { getNext()->finish(); }

 private:
  std::uintmax_t m_left;
};

std::uintmax_t boundFor(std::FILE *document, std::uintmax_t least) {
  constexpr std::uintmax_t times = 64;
  std::fseek(document, 0, SEEK_END);
  const long size = std::ftell(document);
  std::rewind(document);
  return std::max(least, size > 0 ? times * static_cast<std::uintmax_t>(size) : 0);
}

/// `isFiltered`: some streams have yet to be worked on, which libqpdf does where it decodes them.
void write(QPDF &document, Pipeline *sheets, bool isFiltered) {
  QPDFWriter writer(document);
  writer.setOutputPipeline(sheets);
  writer.setPreserveEncryption(false);
  // It is read once, at once, on this machine.
  if (!isFiltered) writer.setDecodeLevel(qpdf_dl_none);
  writer.setCompressStreams(isFiltered);
  writer.setObjectStreamMode(qpdf_o_disable);
  writer.write();
}

std::vector<PageForm> formsOf(const Pages &pages, Size paper) {
  std::vector<PageForm> forms;
  forms.reserve(pages.size());
  FormsMade made;
  for (const QPDFPageObjectHelper &page : pages) forms.push_back(formOf(page, paper, &made));
  return forms;
}

std::vector<QPDFObjectHandle> sidesOf(QPDF &document, const std::vector<PageForm> &forms,
                                      Size paper, const imposition::BookletKeys &keys) {
  std::vector<Size> sizes;
  sizes.reserve(forms.size());
  for (const PageForm &form : forms) sizes.push_back(form.size);
  const imposition::ImposedJob job = imposition::imposeBooklet(sizes, paper, keys);
  const SheetPaper sheet{paper, job.side};
  std::vector<QPDFObjectHandle> sides;
  sides.reserve(2 * job.sheets.size());
  for (const auto &[front, back] : job.sheets) {
    sides.push_back(pageOf(document, front, Face::Front, sheet, forms));
    sides.push_back(pageOf(document, back, Face::Back, sheet, forms));
  }
  return sides;
}

/// The same for every sheet, so that the booklet can be folded.
Size paperFor(const BookletRequest &request, const Pages &pages) {
  if (request.paper && imposition::isDrawable(*request.paper)) return *request.paper;
  FormsMade made;
  return formOf(pages.front(), usualPaper, &made).size;
}

int countMissing(const Pages &pages) {
  const auto missing = std::count_if(pages.begin(), pages.end(), [](QPDFPageObjectHelper page) {
    return !page.getObjectHandle().isDictionary();
  });
  return static_cast<int>(missing);
}

Result<ImposedSheets> impose(QPDF &document, Pipeline *sheets, const BookletRequest &request) {
  auto pages = pagesOf(document);
  if (!pages) return pages.failure();
  if (pages.value().empty()) {
    return Failure{FailureKind::Io, QStringLiteral("the document"),
                   QStringLiteral("it has no pages")};
  }
  const int missing = countMissing(pages.value());
  if (request.mayBeginWithFiller) dropFiller(pages.value());
  if (request.isTurnedForTray) std::reverse(pages.value().begin(), pages.value().end());
  const bool hasAnnotations = drawAnnotations(document, pages.value());
  const Size paper = paperFor(request, pages.value());
  const auto sides = sidesOf(document, formsOf(pages.value(), paper), paper, request.keys);
  replacePages(document, sides);
  write(document, sheets, hasAnnotations);
  return ImposedSheets{static_cast<int>(sides.size()), missing};
}

}  // namespace

Result<ImposedSheets> imposeDocument(std::FILE *document, std::FILE *sheets,
                                     const BookletRequest &request) {
  const std::uintmax_t most = boundFor(document, request.mostBytes);
  try {
    QPDF pdf;
    pdf.setSuppressWarnings(true);
    pdf.processFile("document", document, false);
    Pl_StdioFile file("sheets", sheets);
    BoundedOutput output(&file, most);
    const auto imposed = impose(pdf, &output, request);
    // What earlier writes lost is no longer there to be flushed.
    const bool isWritten = std::fflush(sheets) == 0 && std::ferror(sheets) == 0;
    if (imposed && !isWritten) return unwritten();
    return imposed;
  } catch (const TooLarge &) {
    return tooLarge(most);
  } catch (const QPDFExc &error) {
    return failureOf(error);
  } catch (const std::exception &error) {
    if (std::ferror(sheets) != 0) return unwritten();
    return failure(oneLine(error.what()));
  }
}

}  // namespace orvek::driver
