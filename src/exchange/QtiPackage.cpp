// SPDX-License-Identifier: MIT
#include "exchange/QtiPackage.h"

#include "exchange/Addresses.h"
#include "exchange/ExchangeLimits.h"
#include "exchange/XmlText.h"
#include "platform/TextNumbers.h"
#include "platform/documents/XmlPart.h"
#include "text/Utf.h"

#include <algorithm>
#include <filesystem>

namespace quorvantis {
namespace {

constexpr std::string_view kManifest = "imsmanifest.xml";
constexpr std::size_t kMostParts = 20'000;
constexpr std::size_t kMostPartBytes = std::size_t{16} << 20;

bool IsZip(const ExchangeSource& source) {
  return source.Head().starts_with("PK\x03\x04");
}

/// The manifest nearest to the root; empty if there is none.
std::string ManifestAmong(const std::vector<std::string>& names) {
  std::string nearest;
  for (const std::string& name : names) {
    const bool isManifest = name == kManifest || name.ends_with("/" + std::string(kManifest));
    if (isManifest && (nearest.empty() || name.size() < nearest.size())) nearest = name;
  }
  return nearest;
}

/// A path without "." and "..", or nothing if it leaves the package.
std::optional<std::string> Normal(const std::filesystem::path& path) {
  std::string normal = path.lexically_normal().generic_string();
  if (normal.starts_with("..") || normal.starts_with("/") || normal.empty()) return std::nullopt;
  return normal;
}

/// With escapes resolved, folder by folder.
std::string PathIn(std::u16string_view address) {
  address = address.substr(0, address.find_first_of(u"?#"));
  std::string path;
  for (std::size_t begin = 0; begin <= address.size();) {
    const std::size_t end = std::min(address.find(u'/', begin), address.size());
    path += (begin == 0 ? "" : "/") + Utf16ToUtf8(FileNameIn(address.substr(begin, end - begin)));
    begin = end + 1;
  }
  return path;
}

}  // namespace

QtiPackage::QtiPackage(const ExchangeSource& source, ReadingTools& tools) : source_(source), tools_(tools) {
  if (!IsZip(source)) return;
  zip_ = std::make_unique<ZipPackage>(source.File());
  if (zip_->Opened() != WordResult::Done) {
    tools.notes.Tell(text_id::kExchangeDamaged);
    return;
  }
  names_ = zip_->Names(kMostParts);
  const std::string manifest = ManifestAmong(names_);
  if (!manifest.empty()) root_ = manifest.substr(0, manifest.size() - kManifest.size());
}

std::optional<std::string> QtiPackage::Bytes(const std::string& name, std::size_t limit) {
  if (!zip_) return source_.Bytes(limit);
  if (zip_->Opened() != WordResult::Done) return std::nullopt;
  PackagePart part = zip_->Read(name, limit);
  if (part.result == WordResult::TooLarge) tools_.notes.Tell(text_id::kExchangeFileTooLarge, {TextOf(name)});
  return part.result == WordResult::Done ? std::optional(std::move(part.bytes)) : std::nullopt;
}

bool QtiPackage::Parse(const std::string& name, pugi::xml_document& document) {
  auto bytes = Bytes(name, zip_ ? kMostPartBytes : kMaxExchangedFile);
  if (!bytes) {
    tools_.notes.Tell(text_id::kExchangePartMissing, {Excerpt(TextOf(name))});
    return false;
  }
  bytesRead_ += bytes->size();
  if (bytesRead_ > kMaxSourceFile) {
    tools_.notes.Tell(text_id::kExchangeSourceTooLarge);
    return false;
  }
  return ParseForeignXml(std::move(*bytes), document, tools_.notes);
}

std::vector<std::string> QtiPackage::PartsOfType(std::initializer_list<std::string_view> types) {
  if (!zip_) return {source_.File().filename().string()};
  pugi::xml_document manifest;
  std::vector<std::string> parts;
  if (zip_->Opened() != WordResult::Done || !Parse(root_ + std::string(kManifest), manifest)) return parts;
  for (const pugi::xml_node resource : ElementsBelow(manifest, {"resource"})) {
    const std::string_view type = ValueOf(resource, "type");
    const bool isWanted = std::any_of(types.begin(), types.end(),
                                      [type](std::string_view wanted) { return type.starts_with(wanted); });
    if (!isWanted) continue;
    std::string_view href = ValueOf(resource, "href");
    if (href.empty()) href = ValueOf(ChildOf(resource, "file"), "href");
    if (const auto name = Normal(root_ + PathIn(TextOf(href)))) parts.push_back(*name);
  }
  return parts;
}

std::optional<ExchangedFile> QtiPackage::Find(const std::string& from, std::u16string_view address) {
  if (IsOfTheNet(address) || !zip_) return std::nullopt;
  const auto name = Normal(std::filesystem::path(from).parent_path() / PathIn(address));
  return name ? Keep(*name) : std::nullopt;
}

std::optional<ExchangedFile> QtiPackage::FindAnywhere(std::u16string_view path) {
  const std::string end = "/" + PathIn(path);
  const auto name =
      std::ranges::find_if(names_, [&end](const std::string& known) { return ("/" + known).ends_with(end); });
  return name != names_.end() ? Keep(*name) : std::nullopt;
}

std::optional<ExchangedFile> QtiPackage::Keep(const std::string& name) {
  const auto known = kept_.find(name);
  if (known != kept_.end()) return known->second;
  const auto bytes = Bytes(name, kMaxExchangedFile);
  const std::string_view fileName = std::string_view(name).substr(name.rfind('/') + 1);
  auto file = bytes ? tools_.files.Keep(TextOf(fileName), *bytes) : std::nullopt;
  kept_[name] = file;
  return file;
}

bool PackageMentions(const ExchangeSource& source, std::initializer_list<std::string_view> words) {
  std::string text = source.HeadOfXml();
  if (IsZip(source)) {
    const ZipPackage zip(source.File());
    if (zip.Opened() != WordResult::Done) return false;
    const std::string manifest = ManifestAmong(zip.Names(kMostParts));
    if (manifest.empty()) return false;
    text = zip.Read(manifest, kMostPartBytes).bytes;
  }
  return std::any_of(words.begin(), words.end(),
                     [&text](std::string_view word) { return text.find(word) != text.npos; });
}

}  // namespace quorvantis
