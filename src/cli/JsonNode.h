// SPDX-License-Identifier: MIT
#pragma once

#include <nlohmann/json.hpp>

#include <filesystem>
#include <string>
#include <vector>

namespace quorvantis::cli {

/// A value of a JSON description with the place where it stands, for error messages. Every access that does
/// not fit throws CommandError with that place.
class JsonNode {
 public:
  /// `value` must outlive the node. An empty place is the description as a whole.
  JsonNode(const nlohmann::json& value, std::string place) : value_(value), place_(std::move(place)) {}

  [[noreturn]] void Fail(const std::string& what) const;

  bool Has(const char* member) const { return Object().contains(member); }
  JsonNode Member(const char* member) const;
  std::vector<JsonNode> Elements(std::size_t most) const;

  std::u16string Text() const;
  std::filesystem::path Path() const;
  int Integer() const;
  float Score() const;

 private:
  const nlohmann::json& Object() const;

  const nlohmann::json& value_;
  std::string place_;
};

/// Takes a member over where there is one.
void TakeText(const JsonNode& node, const char* member, std::u16string& text);

template <class Number>
void TakeNumber(const JsonNode& node, const char* member, Number& number) {
  if (node.Has(member)) number = static_cast<Number>(node.Member(member).Integer());
}

/// Parses a whole file. Throws CommandError when it cannot be read or is no JSON.
nlohmann::json ParseJsonFile(const std::filesystem::path& file);

}  // namespace quorvantis::cli
