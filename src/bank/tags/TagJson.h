// SPDX-License-Identifier: MIT
#pragma once

#include "bank/tags/TagEntry.h"
#include "bank/tags/TagFile.h"

#include <nlohmann/json.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The content of a file of tags, with whatever else stands in it.
class TagJson {
 public:
  /// No bytes, or blanks only, are a file without tags. Nothing if it is damaged; `reason` tells where.
  static std::optional<TagJson> Parse(std::string_view bytes, std::string& reason);

  /// Whether a newer program wrote it in a form that may mean something else.
  bool IsNewer() const;

  TagEntries Entries() const;

  /// The tags of one question: clean ones, sorted.
  std::vector<std::u16string> TagsAt(const std::string& key) const;

  /// An entry without tags is removed, unless there is something in it that this program does not know.
  void Apply(const TagChange& change);

  /// The file in UTF-8: keys sorted, indented.
  std::string Bytes() const;

 private:
  using Json = nlohmann::json;

  explicit TagJson(Json json) : json_(std::move(json)) {}
  static const char* FaultOf(const Json& json);
  static const char* FaultOfEntry(const Json& entry);

  Json json_;
};

}  // namespace quorvantis
