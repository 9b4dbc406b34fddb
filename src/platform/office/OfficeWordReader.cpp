// SPDX-License-Identifier: MIT
#include "platform/office/OfficeWordReader.h"

#include "platform/office/BitmapFile.h"
#include "platform/office/CompoundFile.h"
#include "platform/office/DocumentKind.h"
#include "platform/office/DocumentPictures.h"
#include "platform/office/DocxReader.h"
#include "platform/office/ImportFilters.h"
#include "platform/posix/PrivateFolder.h"

#include <fstream>
#include <new>
#include <string>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

/// A package in which to look for pictures, and the folder around it where it is none of the user's.
struct PackageInUse {
  std::unique_ptr<PrivateFolder> folder;  ///< goes after the package
  std::unique_ptr<ZipPackage> package;
};

/// Without the care for power cuts that saving takes: what an import wrote is worth nothing without its
/// questions.
bool WriteNewFile(const fs::path& file, const std::string& bytes) {
  std::error_code ignored;
  fs::remove(file, ignored);
  std::ofstream out(file, std::ios::binary);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  if (out.fail()) fs::remove(file, ignored);
  return !out.fail();
}

class OpenDocx : public OpenWordDocument {
 public:
  // cppcheck-suppress passedByValue // its parts are moved from
  OpenDocx(PackageInUse source, DocxContent content, OfficeConverter converter)
      : source_(std::move(source)),
        document_(std::move(content.document)),
        pictures_(*source_.package, std::move(content.pictures), std::move(converter)) {}

  const WordDocument& Content() const override { return document_; }

  WordResult SavePicture(std::size_t picture, const fs::path& file) override try {
    PixelGrid pixels;
    const WordResult decoded = pictures_.Decode(picture, pixels);
    if (decoded != WordResult::Done) return decoded;
    return WriteNewFile(file, BitmapFile(pixels).Bytes()) ? WordResult::Done : WordResult::CannotAccess;
  } catch (const std::bad_alloc&) {
    return WordResult::TooLarge;
  } catch (const fs::filesystem_error&) {
    return WordResult::CannotAccess;
  }

 private:
  PackageInUse source_;
  WordDocument document_;
  DocumentPictures pictures_;
};

std::vector<std::string> FiltersOf(DocumentKind kind) {
  switch (kind) {
    case DocumentKind::Doc:
      return ImportFiltersOf("doc", CompoundFile::kSignature);
    case DocumentKind::OpenDocument:
      return ImportFiltersOf("odt", "PK\x03\x04");
    case DocumentKind::RichText:
      return ImportFiltersOf("rtf", "{\\rtf");
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

WordReadOutcome OfficeWordReader::Open(const fs::path& file, const WordReadOptions& options) try {
  const DocumentKindOutcome kind = KindOfDocument(file);
  if (kind.result != WordResult::Done) return {kind.result, nullptr};
  const OfficeConverter converter(programs_, options.isCancelled);
  PackageInUse source;
  fs::path package = file;
  if (kind.kind != DocumentKind::Docx) {
    source.folder = std::make_unique<PrivateFolder>();
    const WordResult converted = ConvertToDocx(file, kind.kind, converter, source.folder->Path());
    if (converted != WordResult::Done) return {converted, nullptr};
    package = source.folder->Path() / "document.docx";
  }
  source.package = std::make_unique<ZipPackage>(package);
  if (source.package->Opened() != WordResult::Done) return {source.package->Opened(), nullptr};
  DocxContent content = ReadDocx(*source.package, options.listLabels);
  if (content.result != WordResult::Done) return {content.result, nullptr};
  return {WordResult::Done, std::make_unique<OpenDocx>(std::move(source), std::move(content), converter)};
} catch (const std::bad_alloc&) {
  return {WordResult::TooLarge, nullptr};
} catch (const fs::filesystem_error&) {
  return {WordResult::CannotAccess, nullptr};
}

}  // namespace quorvantis
