// SPDX-License-Identifier: MIT
#pragma once

#include <nlohmann/json.hpp>

#include <filesystem>
#include <string>
#include <vector>

namespace quorvantis::cli {

/// A value in a JSON description and its place there, for error messages. Any access that does not fit the
/// value throws CommandError with that place.
class JsonNode {
 public:
  /// `value` must outlive the node. An empty place stands for the whole description.
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

/// Reads a member if there is one.
void TakeText(const JsonNode& node, const char* member, std::u16string& text);

template <class Number>
void TakeNumber(const JsonNode& node, const char* member, Number& number) {
  if (node.Has(member)) number = static_cast<Number>(node.Member(member).Integer());
}

/// Parses a whole file. Throws CommandError if it cannot be read or is not JSON.
nlohmann::json ParseJsonFile(const std::filesystem::path& file);

}  // namespace quorvantis::cli
