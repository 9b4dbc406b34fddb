// SPDX-License-Identifier: MIT
#include "cli/form/JsonNode.h"

#include "cli/console/CommandError.h"
#include "cli/console/InputFile.h"
#include "examfile/ExamFileFields.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <cstdint>
#include <fstream>

namespace quorvantis::cli {

void JsonNode::Fail(const std::string& what) const {
  throw CommandError((place_.empty() ? "the description" : place_) + " " + what);
}

const nlohmann::json& JsonNode::Object() const {
  if (!value_.is_object()) Fail("must be an object");
  return value_;
}

JsonNode JsonNode::Member(const char* member) const {
  return {Object().at(member), place_ + (place_.empty() ? "" : ".") + member};
}

std::vector<JsonNode> JsonNode::Elements(std::size_t most) const {
  if (!value_.is_array()) Fail("must be a list");
  if (value_.size() > most) Fail("has more than " + std::to_string(most) + " entries");
  std::vector<JsonNode> elements;
  for (std::size_t i = 0; i < value_.size(); ++i) {
    elements.emplace_back(value_[i], place_ + "[" + std::to_string(i) + "]");
  }
  return elements;
}

std::u16string JsonNode::Text() const {
  if (!value_.is_string()) Fail("must be a text");
  return Utf8ToUtf16(value_.get_ref<const std::string&>());
}

std::filesystem::path JsonNode::Path() const {
  const std::u16string text = Text();
  if (text.empty()) Fail("must not be empty");
  return TextToPath(text);
}

int JsonNode::Integer() const {
  if (!value_.is_number_integer()) Fail("must be a whole number");
  const bool huge = value_.is_number_unsigned() && value_.get<std::uint64_t>() > INT32_MAX;
  if (huge || value_.get<std::int64_t>() > INT32_MAX || value_.get<std::int64_t>() < INT32_MIN)
    Fail("is too large");
  return value_.get<int>();
}

float JsonNode::Score() const {
  if (value_.is_number()) return value_.get<float>();
  const bool numberText = value_.is_string() && Text().find_first_of(u"0123456789") != std::u16string::npos;
  if (!numberText) Fail("must be a number");
  return ParseScoreText(Text());
}

void TakeText(const JsonNode& node, const char* member, std::u16string& text) {
  if (node.Has(member)) text = node.Member(member).Text();
}

nlohmann::json ParseJsonFile(const std::filesystem::path& file) {
  std::ifstream in = OpenInput(file);
  try {
    return nlohmann::json::parse(in);
  } catch (const nlohmann::json::exception& problem) {
    const std::string_view text = problem.what();
    throw CommandError(file.string() +
                       ": is not valid JSON: " + std::string(text.substr(text.find(']') + 2)));
  }
}

}  // namespace quorvantis::cli
