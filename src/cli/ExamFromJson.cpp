// SPDX-License-Identifier: MIT
#include "cli/ExamFromJson.h"

#include "cli/CommandError.h"
#include "examfile/ExamFileFields.h"
#include "model/AnswerLetters.h"
#include "model/LongAnswerFlags.h"
#include "platform/ExamServices.h"
#include "text/NumberText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

namespace quorvantis::cli {
namespace {

using Json = nlohmann::json;

/// A value of the description with the place where it stands, for error messages.
class Node {
 public:
  Node(const Json& value, std::string place) : value_(value), place_(std::move(place)) {}

  [[noreturn]] void Fail(const std::string& what) const {
    throw CommandError((place_.empty() ? "the description" : place_) + " " + what);
  }

  bool Has(const char* member) const { return Object().contains(member); }
  Node Member(const char* member) const {
    return {Object().at(member), place_ + (place_.empty() ? "" : ".") + member};
  }

  std::vector<Node> Elements(std::size_t most) const {
    if (!value_.is_array()) Fail("must be a list");
    if (value_.size() > most) Fail("has more than " + std::to_string(most) + " entries");
    std::vector<Node> elements;
    for (std::size_t i = 0; i < value_.size(); ++i) {
      elements.emplace_back(value_[i], place_ + "[" + std::to_string(i) + "]");
    }
    return elements;
  }

  std::u16string Text() const {
    if (!value_.is_string()) Fail("must be a text");
    return Utf8ToUtf16(value_.get_ref<const std::string&>());
  }
  std::filesystem::path Path() const {
    return Text().empty() ? Fail("must not be empty"), "" : TextToPath(Text());
  }

  int Integer() const {
    if (!value_.is_number_integer()) Fail("must be a whole number");
    const bool huge = value_.is_number_unsigned() && value_.get<std::uint64_t>() > INT32_MAX;
    if (huge || value_.get<std::int64_t>() > INT32_MAX || value_.get<std::int64_t>() < INT32_MIN)
      Fail("is too large");
    return value_.get<int>();
  }
  float Score() const {
    if (value_.is_number()) return value_.get<float>();
    const bool numberText = value_.is_string() && Text().find_first_of(u"0123456789") != std::u16string::npos;
    if (!numberText) Fail("must be a number");
    return ParseScoreText(Text());
  }

 private:
  const Json& Object() const {
    if (!value_.is_object()) Fail("must be an object");
    return value_;
  }

  const Json& value_;
  std::string place_;
};

void TakeText(const Node& node, const char* member, std::u16string& text) {
  if (node.Has(member)) text = node.Member(member).Text();
}

template <class Number>
void TakeNumber(const Node& node, const char* member, Number& number) {
  if (node.Has(member)) number = static_cast<Number>(node.Member(member).Integer());
}

QuestionKind KindNamed(const Node& node) {
  const std::u16string name = node.Text();
  if (name == u"Choice") return QuestionKind::Choice;
  if (name == u"FillIn") return QuestionKind::FillIn;
  if (name == u"Essay") return QuestionKind::Essay;
  if (name == u"Oral") return QuestionKind::Oral;
  const int number = ParseInteger(name);
  if (FormatInteger(number) != name) node.Fail("must be Choice, FillIn, Essay or Oral");
  return static_cast<QuestionKind>(number);
}

void TakeAttachments(const Node& owner, const std::filesystem::path& baseFolder, AttachmentList& names,
                     AttachmentList& paths) {
  if (!owner.Has("attachments")) return;
  const std::vector<Node> entries = owner.Member("attachments").Elements(kMaxAttachments);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const Node& entry = entries[i];
    if (!entry.Has("path")) entry.Fail("needs a \"path\", relative to the JSON file");
    const std::filesystem::path path = baseFolder / entry.Member("path").Path();
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
      entry.Member("path").Fail("names no file: " + path.string());
    }
    paths[i] = PathToText(path);
    names[i] = PathToText(path.filename());
    if (entry.Has("name") && !entry.Member("name").Text().empty()) names[i] = entry.Member("name").Text();
  }
}

void TakeScoreRanges(const Node& node, ExamPaper& exam) {
  if (!node.Has("scoreRanges")) return;
  const std::vector<Node> ranges = node.Member("scoreRanges").Elements(kScoreRanges);
  for (std::size_t i = 0; i < ranges.size(); ++i) {
    TakeNumber(ranges[i], "from", exam.scoreFrom[i]);
    TakeNumber(ranges[i], "to", exam.scoreTo[i]);
    if (ranges[i].Has("score")) exam.scoreValue[i] = ranges[i].Member("score").Score();
  }
}

void TakeQuestion(const Node& node, const std::filesystem::path& baseFolder, ExamQuestion& question) {
  if (node.Has("kind")) question.kind = KindNamed(node.Member("kind"));
  if (!node.Has("kind")) TakeNumber(node, "kindValue", question.kind);
  TakeText(node, "text", question.text);
  if (node.Has("options")) {
    const std::vector<Node> options = node.Member("options").Elements(kOptionCount);
    for (std::size_t i = 0; i < options.size(); ++i) question.options[i] = options[i].Text();
  }
  TakeText(node, "answerLetters", question.answerLetters);
  question.answerMask = AnswerLettersToMask(question.answerLetters);
  TakeText(node, "answerText", question.answerText);
  TakeText(node, "essayAnswer", question.essayAnswer);
  TakeNumber(node, "oralFlag", question.oralFlag);
  TakeAttachments(node, baseFolder, question.attachmentNames, question.attachmentPaths);
}

void TakeQuestions(const Node& node, const std::filesystem::path& baseFolder, FrameSetExam& exam) {
  if (!node.Has("questions")) return;
  std::array<bool, kQuestionSlots> taken{};
  int number = 0;
  for (const Node& entry : node.Member("questions").Elements(kMaxQuestions)) {
    ++number;
    TakeNumber(entry, "number", number);
    if (!IsQuestionNumber(number)) entry.Fail("must have a number from 1 to 500");
    if (std::exchange(taken[static_cast<std::size_t>(number)], true)) {
      entry.Fail("has the number of another question: " + std::to_string(number));
    }
    ExamQuestion& question = exam.Question(number);
    TakeQuestion(entry, baseFolder, question);
    if (question.answerText.size() > kMaxShortAnswer) exam.Services().longAnswerFlags.Set(number);
  }
}

}  // namespace

void FillExam(FrameSetExam& exam, const Json& description, const std::filesystem::path& baseFolder) {
  const Node root(description, "");
  TakeText(root, "title", exam.title);
  TakeNumber(root, "randomMode", exam.randomMode);
  TakeNumber(root, "scoreMode", exam.scoreMode);
  TakeNumber(root, "boundaryQuestion", exam.boundaryQuestion);
  TakeScoreRanges(root, exam);
  TakeAttachments(root, baseFolder, exam.examAttachmentNames, exam.examAttachmentPaths);
  TakeQuestions(root, baseFolder, exam);
}

}  // namespace quorvantis::cli
