// SPDX-License-Identifier: MIT
#pragma once

#include "examfile/AttachmentSink.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace quorvantis {

/// Some attached files of an exam file, read into memory without unpacking anything (see
/// ReadWithoutUnpacking). All others are passed over.
class PickedFiles : public AttachmentSink {
 public:
  /// The number of a question, or 0 for the exam as a whole, and the index in its list of files.
  using Place = std::pair<int, unsigned>;
  /// Whether a file with this display name is wanted.
  using Picks = std::function<bool(const Place& place, const std::u16string& name)>;

  /// Files that would make more than `mostBytes` together are passed over, too.
  PickedFiles(Picks picks, std::int64_t mostBytes) : picks_(std::move(picks)), room_(mostBytes) {}

  /// What was read of each file that has any content.
  const std::map<Place, std::string>& Contents() const { return contents_; }

 private:
  void Begin(int question, unsigned slot, const std::u16string& name) override;
  bool WantsContent(std::int64_t size) override;
  void Content(std::string_view bytes) override { contents_[place_].append(bytes); }

  Picks picks_;
  std::int64_t room_;
  std::map<Place, std::string> contents_;
  Place place_;
  bool isPicked_ = false;
};

}  // namespace quorvantis
