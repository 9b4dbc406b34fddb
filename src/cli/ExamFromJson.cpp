// SPDX-License-Identifier: MIT
#include "cli/ExamFromJson.h"

#include "cli/CommandError.h"
#include "cli/JsonNode.h"
#include "model/AnswerLetters.h"
#include "model/LongAnswerFlags.h"
#include "platform/ExamServices.h"
#include "text/NumberText.h"
#include "text/PathText.h"

namespace quorvantis::cli {
namespace {

QuestionKind KindNamed(const JsonNode& node) {
  const std::u16string name = node.Text();
  if (name == u"Choice") return QuestionKind::Choice;
  if (name == u"FillIn") return QuestionKind::FillIn;
  if (name == u"Essay") return QuestionKind::Essay;
  if (name == u"Oral") return QuestionKind::Oral;
  const int number = ParseInteger(name);
  if (FormatInteger(number) != name) node.Fail("must be Choice, FillIn, Essay or Oral");
  return static_cast<QuestionKind>(number);
}

void TakeAttachments(const JsonNode& owner, const std::filesystem::path& baseFolder, AttachmentList& names,
                     AttachmentList& paths) {
  if (!owner.Has("attachments")) return;
  const std::vector<JsonNode> entries = owner.Member("attachments").Elements(kMaxAttachments);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const JsonNode& entry = entries[i];
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

void TakeScoreRanges(const JsonNode& node, ExamPaper& exam) {
  if (!node.Has("scoreRanges")) return;
  const std::vector<JsonNode> ranges = node.Member("scoreRanges").Elements(kScoreRanges);
  for (std::size_t i = 0; i < ranges.size(); ++i) {
    TakeNumber(ranges[i], "from", exam.scoreFrom[i]);
    TakeNumber(ranges[i], "to", exam.scoreTo[i]);
    if (ranges[i].Has("score")) exam.scoreValue[i] = ranges[i].Member("score").Score();
  }
}

void TakeQuestion(const JsonNode& node, const std::filesystem::path& baseFolder, ExamQuestion& question) {
  if (node.Has("kind")) question.kind = KindNamed(node.Member("kind"));
  if (!node.Has("kind")) TakeNumber(node, "kindValue", question.kind);
  TakeText(node, "text", question.text);
  if (node.Has("options")) {
    const std::vector<JsonNode> options = node.Member("options").Elements(kOptionCount);
    for (std::size_t i = 0; i < options.size(); ++i) question.options[i] = options[i].Text();
  }
  TakeText(node, "answerLetters", question.answerLetters);
  question.answerMask = AnswerLettersToMask(question.answerLetters);
  TakeText(node, "answerText", question.answerText);
  TakeText(node, "essayAnswer", question.essayAnswer);
  TakeNumber(node, "oralFlag", question.oralFlag);
  TakeAttachments(node, baseFolder, question.attachmentNames, question.attachmentPaths);
}

void TakeQuestions(const JsonNode& node, const std::filesystem::path& baseFolder, FrameSetExam& exam) {
  if (!node.Has("questions")) return;
  std::array<bool, kQuestionSlots> taken{};
  int number = 0;
  for (const JsonNode& entry : node.Member("questions").Elements(kMaxQuestions)) {
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

void FillExam(FrameSetExam& exam, const nlohmann::json& description,
              const std::filesystem::path& baseFolder) {
  const JsonNode root(description, "");
  TakeText(root, "title", exam.title);
  TakeNumber(root, "randomMode", exam.randomMode);
  TakeNumber(root, "scoreMode", exam.scoreMode);
  TakeNumber(root, "boundaryQuestion", exam.boundaryQuestion);
  TakeScoreRanges(root, exam);
  TakeAttachments(root, baseFolder, exam.examAttachmentNames, exam.examAttachmentPaths);
  TakeQuestions(root, baseFolder, exam);
}

}  // namespace quorvantis::cli
