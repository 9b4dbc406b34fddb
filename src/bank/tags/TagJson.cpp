// SPDX-License-Identifier: MIT
#include "bank/tags/TagJson.h"

#include "bank/near/QuestionContentKey.h"
#include "text/Utf.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace quorvantis {
namespace {

constexpr int kFormOfTags = 1;
constexpr int kDeepest = 50;  // levels of brackets; more would need too much of the stack
constexpr const char* kForm = "form";
constexpr const char* kQuestions = "questions";
constexpr const char* kWords = "question";
constexpr const char* kTags = "tags";
constexpr const char* kSketch = "sketch";

nlohmann::json ParseNotTooDeep(std::string_view bytes) {
  return nlohmann::json::parse(bytes, [](int depth, nlohmann::json::parse_event_t, nlohmann::json&) {
    if (depth > kDeepest) throw std::length_error("more than 50 brackets within each other");
    return true;
  });
}

/// Without the class of the error, which the library puts before it in brackets.
std::string WithoutClass(std::string_view message) {
  const std::size_t end = message.starts_with('[') ? message.find("] ") : message.npos;
  return std::string(end == message.npos ? message : message.substr(end + 2));
}

/// So much of a question that a reader of the file knows it again.
std::string FirstWords(const std::u16string& text) {
  constexpr std::size_t kShown = 70;  // UTF-16 units
  std::u16string words;
  for (const char16_t unit : text) {
    if (unit > u' ' && unit != 0x7F) {
      words += unit;
    } else if (!words.empty() && words.back() != u' ') {
      words += u' ';
    }
    if (words.size() > kShown) break;
  }
  if (words.size() > kShown) {
    words.resize(IsHighSurrogate(words[kShown - 1]) ? kShown - 1 : kShown);
    words += u'\u2026';
  }
  if (words.ends_with(u' ')) words.pop_back();
  return Utf16ToUtf8(words);
}

std::vector<std::u16string> TagsOf(const nlohmann::json& entry) {
  std::vector<std::u16string> tags;
  const auto found = entry.find(kTags);
  if (found == entry.end()) return tags;
  for (const nlohmann::json& tag : *found) {
    const auto clean = CleanTag(Utf8ToUtf16(tag.get_ref<const std::string&>()));
    if (clean && !HasTag(tags, *clean)) tags.push_back(*clean);
  }
  std::sort(tags.begin(), tags.end());
  return tags;
}

std::vector<std::u16string> Changed(std::vector<std::u16string> tags, const TagChange& change) {
  for (const std::u16string& tag : change.remove) {
    const auto clean = CleanTag(tag);
    if (clean) std::erase_if(tags, [&](const std::u16string& each) { return IsSameTag(each, *clean); });
  }
  for (const std::u16string& tag : change.add) {
    const auto clean = CleanTag(tag);
    if (clean && !HasTag(tags, *clean)) tags.push_back(*clean);
  }
  std::sort(tags.begin(), tags.end());
  return tags;
}

}  // namespace

std::optional<TagJson> TagJson::Parse(std::string_view bytes, std::string& reason) {
  try {
    const bool isBlank = bytes.find_first_not_of(" \t\r\n") == bytes.npos;
    Json json = isBlank ? Json::object() : ParseNotTooDeep(bytes);
    if (const char* fault = FaultOf(json)) throw std::domain_error(fault);
    return TagJson(std::move(json));
  } catch (const std::exception& failure) {
    reason = WithoutClass(failure.what());
    return std::nullopt;
  }
}

/// Null if there is none.
const char* TagJson::FaultOf(const Json& json) {
  if (!json.is_object()) return "no object";
  if (json.contains(kForm) && !json.at(kForm).is_number_integer()) return "\"form\" is no number";
  const auto questions = json.find(kQuestions);
  if (questions == json.end()) return nullptr;
  if (!questions->is_object()) return "\"questions\" is no object";
  for (const Json& entry : *questions) {
    if (const char* fault = FaultOfEntry(entry)) return fault;
  }
  return nullptr;
}

const char* TagJson::FaultOfEntry(const Json& entry) {
  if (!entry.is_object()) return "a question is no object";
  const auto tags = entry.find(kTags);
  if (tags == entry.end()) return nullptr;
  const bool areTexts = tags->is_array() && std::all_of(tags->begin(), tags->end(),
                                                        [](const Json& tag) { return tag.is_string(); });
  return areTexts ? nullptr : "\"tags\" is no list of texts";
}

bool TagJson::IsNewer() const {
  const auto form = json_.find(kForm);
  return form != json_.end() && *form > kFormOfTags;
}

TagEntries TagJson::Entries() const {
  TagEntries entries;
  const auto questions = json_.find(kQuestions);
  if (questions == json_.end()) return entries;
  for (const auto& [key, json] : questions->items()) {
    if (!IsContentKey(key)) continue;
    TagEntry& entry = entries[key];
    entry.tags = TagsOf(json);
    const auto textAt = [&json = json](const char* name) {
      const auto found = json.find(name);
      return found != json.end() && found->is_string() ? found->template get<std::string>() : std::string();
    };
    entry.words = Utf8ToUtf16(textAt(kWords));
    entry.sketch = ShortSketch::FromDigits(textAt(kSketch)).value_or(ShortSketch());
  }
  return entries;
}

std::vector<std::u16string> TagJson::TagsAt(const std::string& key) const {
  const auto questions = json_.find(kQuestions);
  const auto entry = questions == json_.end() ? json_.end() : questions->find(key);
  const bool isThere = questions != json_.end() && entry != questions->end();
  return isThere ? TagsOf(*entry) : std::vector<std::u16string>();
}

void TagJson::Apply(const TagChange& change) {
  json_[kForm] = kFormOfTags;
  Json& questions = json_[kQuestions];
  if (questions.is_null()) questions = Json::object();
  Json entry = questions.value(change.key, Json::object());
  const std::vector<std::u16string> tags = Changed(TagsOf(entry), change);
  entry[kWords] = FirstWords(change.text);
  const ShortSketch sketch(change.sketch);
  if (!sketch.IsEmpty()) entry[kSketch] = sketch.Digits();
  Json list = Json::array();
  for (const std::u16string& tag : tags) list.push_back(Utf16ToUtf8(tag));
  entry[kTags] = std::move(list);
  const std::size_t known = 2 + entry.count(kSketch);
  if (tags.empty() && entry.size() == known) {
    questions.erase(change.key);
  } else {
    questions[change.key] = std::move(entry);
  }
}

std::string TagJson::Bytes() const {
  return json_.dump(2) + "\n";
}

}  // namespace quorvantis
