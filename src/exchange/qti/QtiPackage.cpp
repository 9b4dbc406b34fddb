// SPDX-License-Identifier: MIT
#include "exchange/qti/QtiPackage.h"

#include "exchange/markup/Addresses.h"
#include "exchange/xml/XmlText.h"
#include "platform/documents/XmlPart.h"
#include "platform/texts/ExchangeTexts.h"
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

/// Not found if the package has none, whatever else it is.
PackagePart ManifestOf(const ExchangeSource& source) {
  const ZipPackage zip(source.File());
  if (zip.Opened() != WordResult::Done) return {zip.Opened(), {}};
  const std::string manifest = ManifestAmong(zip.Names(kMostParts));
  if (manifest.empty()) return {WordResult::NotFound, {}};
  return zip.Read(manifest, kMostPartBytes);
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

PackagePart QtiPackage::Read(const std::string& name, std::size_t limit, std::size_t& left) {
  if (zip_->Opened() != WordResult::Done) return {WordResult::Damaged, {}};
  limit = std::min(limit, left);
  PackagePart part{WordResult::TooLarge, {}};
  if (zip_->ClaimedSize(name) <= limit) part = zip_->Read(name, limit);
  left -= std::min(left, part.unpacked);
  return part;
}

bool QtiPackage::Parse(const std::string& name, pugi::xml_document& document) {
  if (!zip_) {
    auto bytes = source_.Bytes(kMaxExchangedFile);
    if (!bytes) tools_.notes.Tell(text_id::kExchangeSourceTooLarge);
    return bytes && ParseForeignXml(std::move(*bytes), document, tools_.notes);
  }
  PackagePart part = Read(name, kMostPartBytes, xmlLeft_);
  if (part.result == WordResult::Done) return ParseForeignXml(std::move(part.bytes), document, tools_.notes);
  TellUnread(part.result, name);
  return false;
}

void QtiPackage::TellUnread(WordResult result, const std::string& name) {
  const std::u16string part = Excerpt(TextOf(name));
  switch (result) {
    case WordResult::TooLarge:
      return tools_.notes.Tell(text_id::kExchangeSourceTooLarge);
    case WordResult::PasswordProtected:
      return tools_.notes.Tell(text_id::kExchangeEncrypted, {part});
    case WordResult::NotFound:
      return tools_.notes.Tell(text_id::kExchangePartMissing, {part});
    default:
      return tools_.notes.Tell(text_id::kExchangePartDamaged, {part});
  }
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
    std::string folder = root_;
    for (const pugi::xml_node owner : {resource.parent().parent(), resource.parent(), resource})
      folder += PathIn(TextOf(ValueOf(owner, "base")));
    std::string_view href = ValueOf(resource, "href");
    if (href.empty()) href = ValueOf(ChildOf(resource, "file"), "href");
    if (const auto name = Normal(folder + PathIn(TextOf(href)))) {
      parts.push_back(*name);
    } else {
      tools_.notes.Tell(text_id::kExchangePartMissing, {Excerpt(TextOf(href))});
    }
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
  const PackagePart part = Read(name, kMaxExchangedFile, filesLeft_);
  const std::u16string fileName = TextOf(std::string_view(name).substr(name.rfind('/') + 1));
  std::optional<ExchangedFile> file;
  if (part.result == WordResult::Done) file = tools_.files.Keep(fileName, part.bytes);
  if (part.result == WordResult::TooLarge) {
    tools_.notes.Tell(text_id::kExchangeFileTooLarge, {fileName});
  } else if (part.result != WordResult::Done && part.result != WordResult::NotFound) {
    TellUnread(part.result, name);
  }
  kept_[name] = file;
  return file;
}

bool PackageMentions(const ExchangeSource& source, std::initializer_list<std::string_view> words) {
  std::string text = source.HeadOfXml();
  if (IsZip(source)) {
    PackagePart part = ManifestOf(source);
    if (part.result != WordResult::Done) return false;
    text = std::move(part.bytes);
  }
  return std::any_of(words.begin(), words.end(),
                     [&text](std::string_view word) { return text.find(word) != text.npos; });
}

bool IsUnreadablePackage(const ExchangeSource& source) {
  if (!IsZip(source)) return false;
  const WordResult result = ManifestOf(source).result;
  return result != WordResult::Done && result != WordResult::NotFound;
}

}  // namespace quorvantis
