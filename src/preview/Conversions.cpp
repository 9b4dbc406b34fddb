// SPDX-License-Identifier: MIT
#include "preview/Conversions.h"

#include "platform/convert/ContentKey.h"
#include "preview/FileKind.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

void RemoveFolder(const fs::path& folder) {
  std::error_code ignored;
  if (!folder.empty()) fs::remove_all(folder, ignored);
}

}  // namespace

Conversions::Conversions(ConverterPrograms programs, const fs::path& otherwise)
    : programs_(std::move(programs)),
      folder_(otherwise),
      officeFolder_(folder_.New()),
      converters_(std::make_unique<Converters>(programs_, officeFolder_)) {}

std::optional<Conversions::Files> Conversions::KnownPages(const fs::path& document) const {
  const auto found = results_.constFind(KeyOf(document));
  return found == results_.constEnd() ? std::nullopt : found->files;
}

void Conversions::WithPages(const fs::path& document, Use use) {
  const QString key = KeyOf(document);
  const std::optional<fs::path> folder = Wait(key, std::move(use));
  if (!folder) return;
  results_[key].isDocument = true;
  converters_->documents.Make(document, ExtensionOf(document), *folder, [this, key](const Files& pages) {
    Complete(key, pages);
    if (!IsBusy()) emit DocumentsReady();
  });
}

/// For media that play as they are, everyone gets their own file: another copy may be gone.
void Conversions::WithPlayable(const fs::path& media, Use use) {
  const QString key = KeyOf(media);
  Use useOwn = [this, key, media, use = std::move(use)](const Files& files) {
    use(playAsTheyAre_.contains(key) ? Files{media} : files);
  };
  const std::optional<fs::path> folder = Wait(key, std::move(useOwn));
  if (!folder) return;
  converters_->media.Make(media, *folder, [this, key, media](const fs::path& playable) {
    if (playable == media) playAsTheyAre_.insert(key);
    Complete(key, playable.empty() ? Files() : Files{playable});
  });
}

void Conversions::ForgetFailures() {
  results_.removeIf(
      [](QHash<QString, Result>::iterator result) { return result->files && result->files->empty(); });
}

void Conversions::BeginPage() {
  for (Result& result : results_) result.wanted = false;
}

void Conversions::StopUnwanted() {
  const auto goesOn = [](const Result& result) { return result.wanted && !result.files; };
  if (std::none_of(results_.cbegin(), results_.cend(), goesOn)) StopUnfinished();
}

bool Conversions::IsBusy() const {
  return std::any_of(results_.cbegin(), results_.cend(), [](const Result& result) {
    return result.isDocument && result.wanted && !result.files;
  });
}

void Conversions::StopUnfinished() {
  const auto unfinished = [](const Result& result) { return !result.files; };
  if (std::none_of(results_.cbegin(), results_.cend(), unfinished)) return;
  converters_ = std::make_unique<Converters>(programs_, officeFolder_);
  for (const Result& result : std::as_const(results_)) {
    if (unfinished(result)) RemoveFolder(result.folder);
  }
  results_.removeIf([&](QHash<QString, Result>::iterator result) { return unfinished(*result); });
}

QString Conversions::KeyOf(const fs::path& file) {
  return ContentKey(file) + '.' + ExtensionOf(file);
}

std::optional<fs::path> Conversions::Wait(const QString& key, Use use) {
  Result& result = results_[key];
  result.wanted = true;
  if (result.files) {
    use(Files(*result.files));
    return std::nullopt;
  }
  const bool first = result.waiting.empty();
  result.waiting.push_back(std::move(use));
  if (!first) return std::nullopt;
  result.folder = folder_.New();
  if (!result.folder.empty()) return result.folder;
  Complete(key, {});
  return std::nullopt;
}

void Conversions::Complete(const QString& key, const Files& files) {
  Result& result = results_[key];
  result.files = files;
  if (files.empty()) RemoveFolder(result.folder);
  const std::vector<Use> waiting = std::exchange(result.waiting, {});
  for (const Use& use : waiting) use(files);
}

}  // namespace quorvantis
