// SPDX-License-Identifier: MIT
#include "cli/papers/PaperMarksFile.h"

#include "cli/console/CommandError.h"
#include "cli/form/JsonNode.h"
#include "text/Utf.h"

#include <algorithm>
#include <optional>

namespace quorvantis::cli {
namespace {

constexpr std::size_t kMostMarks = 1'000;

struct RoleWord {
  std::u16string_view word;
  PaperRole role;
};

constexpr RoleWord kRoleWords[] = {
    {u"question-number", PaperRole::QuestionNumber},
    {u"question", PaperRole::Question},
    {u"option-label", PaperRole::OptionLabel},
    {u"option", PaperRole::Option},
    {u"answer-label", PaperRole::AnswerLabel},
    {u"answer", PaperRole::Answer},
    {u"heading", PaperRole::Heading},
    {u"not-exam", PaperRole::NotExam},
};

PaperRole RoleOf(const JsonNode& mark) {
  const std::u16string word = mark.Member("role").Text();
  const auto* found = std::ranges::find(kRoleWords, word, &RoleWord::word);
  if (found == std::end(kRoleWords)) mark.Member("role").Fail("must be one of " + RoleWordList());
  return found->role;
}

std::string Quoted(std::u16string_view text) {
  constexpr std::size_t kEnough = 40;
  const bool isLong = text.size() > kEnough;
  return "\"" + Utf16ToUtf8(text.substr(0, kEnough)) + (isLong ? "...\"" : "\"");
}

/// The same text with the line ends of word processors.
std::u16string WithParagraphs(std::u16string text) {
  std::ranges::replace(text, u'\n', u'\r');
  return text;
}

TextSpan PlaceOfText(const JsonNode& mark, std::u16string_view paper) {
  std::u16string text = mark.Member("text").Text();
  if (text.empty()) mark.Member("text").Fail("must not be empty");
  if (paper.find(text) == paper.npos) text = WithParagraphs(std::move(text));
  int nth = 1;
  TakeNumber(mark, "nth", nth);
  if (nth < 1) mark.Member("nth").Fail("must be 1 or more");
  int found = 0;
  for (std::size_t at = paper.find(text); at != paper.npos; at = paper.find(text, at + text.size())) {
    if (++found == nth) return {at, at + text.size()};
  }
  const std::string times = found == 0   ? std::string("is not in the paper")
                            : found == 1 ? std::string("is in the paper only once")
                                         : "is in the paper only " + std::to_string(found) + " times";
  mark.Fail("has the text " + Quoted(text) + ", which " + times);
}

TextSpan PlaceInUnits(const JsonNode& mark, std::u16string_view paper) {
  const int begin = mark.Member("begin").Integer();
  const int end = mark.Member("end").Integer();
  if (begin < 0 || end <= begin) mark.Fail("must end behind its begin");
  if (static_cast<std::size_t>(end) > paper.size())
    mark.Fail("ends behind the paper, which has " + std::to_string(paper.size()) + " units");
  return {static_cast<std::size_t>(begin), static_cast<std::size_t>(end)};
}

PaperMark MarkOf(const JsonNode& mark, std::u16string_view paper) {
  const bool hasText = mark.Has("text");
  const bool hasUnits = mark.Has("begin") && mark.Has("end");
  if (hasText == hasUnits || !mark.Has("role"))
    mark.Fail(R"(needs a "role", and either a "text" or "begin" and "end")");
  return {hasText ? PlaceOfText(mark, paper) : PlaceInUnits(mark, paper), RoleOf(mark)};
}

/// One part of a paper is one thing.
void RefuseContradictions(const std::filesystem::path& file, const std::vector<PaperMark>& marks) {
  for (std::size_t i = 0; i < marks.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      if (!marks[i].span.Overlaps(marks[j].span) || marks[i].role == marks[j].role) continue;
      throw CommandError(file.string() + ": [" + std::to_string(j) + "] and [" + std::to_string(i) +
                         "] contradict each other: they mark the same text with two roles");
    }
  }
}

}  // namespace

std::string RoleWordList() {
  std::u16string list;
  for (const RoleWord& word : kRoleWords) list.append(list.empty() ? u"" : u", ").append(word.word);
  return Utf16ToUtf8(list);
}

std::vector<PaperMark> ReadMarks(const std::filesystem::path& file, const Paper& paper) {
  const nlohmann::json json = ParseJsonFile(file);
  std::vector<PaperMark> marks;
  for (const JsonNode& mark : JsonNode(json, file.string() + ": ").Elements(kMostMarks))
    marks.push_back(MarkOf(mark, paper.source.characters));
  RefuseContradictions(file, marks);
  return marks;
}

}  // namespace quorvantis::cli
