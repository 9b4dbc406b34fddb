// SPDX-License-Identifier: MIT
#include "platform/documents/DocumentKind.h"

#include "platform/WholeFile.h"
#include "platform/documents/CompoundFile.h"
#include "platform/documents/ZipPackage.h"
#include "platform/programs/DocumentSignatures.h"

#include <fstream>
#include <string>
#include <string_view>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kMostFileBytes = std::uintmax_t{512} << 20;
constexpr std::size_t kMostManifestBytes = std::size_t{1} << 20;
constexpr std::size_t kHeadBytes = std::size_t{64} << 10;  // what precedes the root of an XML file

WordResult Access(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (status.type() == fs::file_type::not_found) return WordResult::NotFound;
  if (!fs::is_regular_file(status)) return WordResult::CannotAccess;
  const std::uintmax_t size = fs::file_size(file, error);
  if (error || !std::ifstream(file)) return WordResult::CannotAccess;
  return size > kMostFileBytes ? WordResult::TooLarge : WordResult::Done;
}

std::string Head(const fs::path& file) {
  std::string head(kHeadBytes, '\0');
  std::ifstream in(file, std::ios::binary);
  in.read(head.data(), static_cast<std::streamsize>(head.size()));
  head.resize(static_cast<std::size_t>(in.gcount()));
  return head;
}

/// Whether a file begins like the XML of Word 2003, without entities, which could name other files.
bool IsWordXml(std::string head) {
  std::erase(head, '\0');  // UTF-16
  const std::size_t begin = head.find('<');
  const std::size_t root = head.find("wordDocument");
  if (begin > 3 || root == std::string::npos || !std::string_view(head).substr(begin).starts_with("<?xml"))
    return false;
  const std::size_t space = head.find("http://schemas.microsoft.com/office/word/2003/wordml", root);
  return space != std::string::npos && head.find("<!DOCTYPE") > root;
}

/// Protected packages of newer documents are such files too.
DocumentKindOutcome KindOfCompoundFile(const fs::path& file) {
  constexpr std::size_t kFlags = 10;
  constexpr unsigned kEncrypted = 0x01;  // in the second byte of the flags
  const auto bytes = ReadWholeFile(file, kMostFileBytes);
  if (!bytes) return {WordResult::CannotAccess, {}};
  const CompoundFile compound(*bytes);
  if (compound.Has(u"EncryptedPackage")) return {WordResult::PasswordProtected, {}};
  if (!compound.Has(u"WordDocument")) return {WordResult::UnknownFormat, {}};
  const std::string_view head = compound.Head(u"WordDocument", kFlags + 2);
  const bool isEncrypted =
      head.size() == kFlags + 2 && (static_cast<unsigned>(head.back()) & kEncrypted) != 0;
  return {isEncrypted ? WordResult::PasswordProtected : WordResult::Done, DocumentKind::Doc};
}

DocumentKindOutcome KindOfPackage(const fs::path& file) {
  const ZipPackage package(file);
  if (package.Opened() != WordResult::Done) return {package.Opened(), {}};
  const PackagePart type = package.Read("mimetype", kMostManifestBytes);
  if (type.result == WordResult::NotFound) return {WordResult::Done, DocumentKind::Docx};
  if (!type.bytes.starts_with("application/vnd.oasis.opendocument.text"))
    return {WordResult::UnknownFormat, {}};
  const std::string manifest = package.Read("META-INF/manifest.xml", kMostManifestBytes).bytes;
  const bool isEncrypted = manifest.find("encryption-data") != std::string::npos;
  return {isEncrypted ? WordResult::PasswordProtected : WordResult::Done, DocumentKind::OpenDocument};
}

/// Whether groups lie within each other far deeper than any document needs. The word processor would try to
/// read them until its time is over. Binary data may hold brackets, too, but as many of each kind.
bool IsNestedTooDeeply(const fs::path& file) {
  constexpr int kDeepest = 5'000;
  std::ifstream in(file, std::ios::binary);
  std::string part(kHeadBytes, '\0');
  int depth = 0;
  bool isEscaped = false;
  do {
    in.read(part.data(), static_cast<std::streamsize>(part.size()));
    for (const char byte : std::string_view(part).substr(0, static_cast<std::size_t>(in.gcount()))) {
      if (!isEscaped && byte == '{') ++depth;
      if (!isEscaped && byte == '}') --depth;
      isEscaped = !isEscaped && byte == '\\';
      if (depth > kDeepest) return true;
    }
  } while (in);
  return false;
}

DocumentKindOutcome KindOfRichText(const fs::path& file) {
  return {IsNestedTooDeeply(file) ? WordResult::TooDeep : WordResult::Done, DocumentKind::RichText};
}

}  // namespace

DocumentKindOutcome KindOfDocument(const fs::path& file) {
  const WordResult access = Access(file);
  if (access != WordResult::Done) return {access, {}};
  const std::string head = Head(file);
  if (head.starts_with(kPackageSignature)) return KindOfPackage(file);
  if (head.starts_with(kCompoundFileSignature)) return KindOfCompoundFile(file);
  if (head.starts_with(kRichTextSignature)) return KindOfRichText(file);
  if (IsWordXml(head)) return {WordResult::Done, DocumentKind::WordXml};
  return {WordResult::UnknownFormat, {}};
}

}  // namespace quorvantis
