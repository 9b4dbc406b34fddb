// SPDX-License-Identifier: MIT
#pragma once

#include "platform/WordDocuments.h"

#include <algorithm>
#include <string>
#include <utility>

namespace quorvantis {

/// Papers in files, and one that is only a text: what a user has pasted can be studied and imported as any
/// other paper, without becoming a file first.
class HeldPapers : public WordDocuments {
 public:
  /// `files`, which reads all other papers, must outlive this.
  explicit HeldPapers(WordDocuments& files) : files_(files) {}

  /// In UTF-16 units.
  static constexpr std::size_t kMostHeld = 25'000'000;

  /// Keeps `text` as a paper with this name until the next call. No paper may be being read.
  void Hold(std::filesystem::path name, std::u16string text) {
    name_ = std::move(name);
    text_ = std::move(text);
    std::replace(text_.begin(), text_.end(), u'\0', u'\uFFFD');  // a paper's text would end there
  }

  WordReadOutcome Open(const std::filesystem::path& file, const WordReadOptions& options) override {
    if (name_.empty() || file != name_) return files_.Open(file, options);
    if (text_.size() > kMostHeld) return {WordResult::TooLarge};
    WordReadOutcome outcome;
    outcome.document.runningText.characters = text_;
    outcome.document.isPlainText = true;
    return outcome;
  }

 private:
  WordDocuments& files_;
  std::filesystem::path name_;
  std::u16string text_;
};

}  // namespace quorvantis
