// SPDX-License-Identifier: MIT
#include "platform/documents/OfficeWordDocuments.h"

#include "platform/documents/CompoundFile.h"
#include "platform/documents/DocumentKind.h"
#include "platform/documents/DocumentPictures.h"
#include "platform/documents/DocxReader.h"
#include "platform/posix/PrivateFolder.h"
#include "platform/programs/DocumentSignatures.h"
#include "platform/programs/ImportFilters.h"

#include <new>
#include <string>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

/// A package to look for pictures in, and its folder if it is a converted copy.
struct PackageInUse {
  std::unique_ptr<PrivateFolder> folder;  ///< removed after the package
  std::unique_ptr<ZipPackage> package;
};

class DocxPictures : public WordPictures {
 public:
  // cppcheck-suppress passedByValue // its parts are moved from
  DocxPictures(PackageInUse source, std::vector<PicturePlace> places, OfficeConverter converter)
      : source_(std::move(source)), pictures_(*source_.package, std::move(places), std::move(converter)) {}

  WordResult Read(std::size_t picture, PixelGrid& pixels) override try {
    return pictures_.Decode(picture, pixels);
  } catch (const std::bad_alloc&) {
    return WordResult::TooLarge;
  } catch (const fs::filesystem_error&) {
    return WordResult::CannotAccess;
  }

 private:
  PackageInUse source_;
  DocumentPictures pictures_;
};

std::vector<std::string> FiltersOf(DocumentKind kind) {
  switch (kind) {
    case DocumentKind::Doc:
      return ImportFiltersOf("doc", kCompoundFileSignature);
    case DocumentKind::OpenDocument:
      return ImportFiltersOf("odt", kPackageSignature);
    case DocumentKind::RichText:
      return ImportFiltersOf("rtf", kRichTextSignature);
    case DocumentKind::WordXml:
      return {"MS Word 2003 XML"};
    case DocumentKind::Docx:
      break;
  }
  return {};
}

/// A copy with a plain name: LibreOffice fails on some names and leaves lock files beside the original.
WordResult ConvertToDocx(const fs::path& file, DocumentKind kind, const OfficeConverter& converter,
                         const fs::path& folder) {
  const fs::path copy = folder / "document.bin";
  std::error_code error;
  fs::copy_file(file, copy, error);
  return error ? WordResult::CannotAccess : converter.Convert({copy, FiltersOf(kind), "docx"});
}

}  // namespace

WordReadOutcome OfficeWordDocuments::Open(const fs::path& file, const WordReadOptions& options) try {
  const DocumentKindOutcome kind = KindOfDocument(file);
  if (kind.result != WordResult::Done) return {kind.result};
  const OfficeConverter converter(programs_, options.isCancelled);
  PackageInUse source;
  fs::path package = file;
  if (kind.kind != DocumentKind::Docx) {
    source.folder = std::make_unique<PrivateFolder>();
    const WordResult converted = ConvertToDocx(file, kind.kind, converter, source.folder->Path());
    if (converted != WordResult::Done) return {converted};
    package = source.folder->Path() / "document.docx";
  }
  source.package = std::make_unique<ZipPackage>(package);
  if (source.package->Opened() != WordResult::Done) return {source.package->Opened()};
  DocxContent content = ReadDocx(*source.package, options.listLabels);
  if (content.result != WordResult::Done) return {content.result};
  return {WordResult::Done, std::move(content.document),
          std::make_unique<DocxPictures>(std::move(source), std::move(content.pictures), converter)};
} catch (const std::bad_alloc&) {
  return {WordResult::TooLarge};
} catch (const fs::filesystem_error&) {
  return {WordResult::CannotAccess};
}

}  // namespace quorvantis
