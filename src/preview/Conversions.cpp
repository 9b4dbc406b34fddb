// SPDX-License-Identifier: MIT
#include "preview/Conversions.h"

#include "platform/convert/ContentKey.h"
#include "preview/FileKind.h"

#include <system_error>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

}  // namespace

Conversions::Conversions(const ConverterPrograms& programs) : documents_(programs), media_(programs) {}

std::optional<Conversions::Files> Conversions::KnownPages(const fs::path& document) const {
  const auto found = results_.constFind(KeyOf(document));
  return found == results_.constEnd() ? std::nullopt : found->files;
}

void Conversions::WithPages(const fs::path& document, Use use) {
  const QString key = KeyOf(document);
  if (!Wait(key, std::move(use))) return;
  ++waitingDocuments_;
  documents_.Make(document, ExtensionOf(document), NewFolder(), [this, key](const Files& pages) {
    --waitingDocuments_;
    Complete(key, pages);
    if (waitingDocuments_ == 0) emit DocumentsReady();
  });
}

/// Of media that play as they are everyone gets his own file: another copy of it may be gone.
void Conversions::WithPlayable(const fs::path& media, Use use) {
  const QString key = KeyOf(media);
  Use useOwn = [this, key, media, use = std::move(use)](const Files& files) {
    use(playAsTheyAre_.contains(key) ? Files{media} : files);
  };
  if (!Wait(key, std::move(useOwn))) return;
  media_.Make(media, NewFolder(), [this, key, media](const fs::path& playable) {
    if (playable == media) playAsTheyAre_.insert(key);
    Complete(key, playable.empty() ? Files() : Files{playable});
  });
}

void Conversions::ForgetFailures() {
  results_.removeIf(
      [](QHash<QString, Result>::iterator result) { return result->files && result->files->empty(); });
}

QString Conversions::KeyOf(const fs::path& file) {
  return ContentKey(file) + '.' + ExtensionOf(file);
}

bool Conversions::Wait(const QString& key, Use use) {
  const auto found = results_.find(key);
  if (found != results_.end() && found->files) {
    use(*found->files);
    return false;
  }
  const bool first = found == results_.end();
  results_[key].waiting.push_back(std::move(use));
  return first;
}

void Conversions::Complete(const QString& key, const Files& files) {
  Result& result = results_[key];
  result.files = files;
  const std::vector<Use> waiting = std::exchange(result.waiting, {});
  for (const Use& use : waiting) use(files);
}

fs::path Conversions::NewFolder() {
  fs::path folder = fs::path(folder_.path().toStdString()) / std::to_string(++folders_);
  std::error_code ignored;
  fs::create_directory(folder, ignored);
  return folder;
}

}  // namespace quorvantis
