// SPDX-License-Identifier: MIT
#include "cli/ExamJson.h"

#include "cli/Sha256.h"
#include "text/NumberText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

namespace quorvantis::cli {
namespace {

using Json = nlohmann::ordered_json;

Json AttachmentsToJson(const AttachmentList& names, const AttachmentList& paths) {
  Json list = Json::array();
  for (const auto& [name, path] : AttachedFiles(names, paths)) {
    std::error_code error;
    const bool made = std::filesystem::is_regular_file(path, error);
    list.push_back({{"name", Utf16ToUtf8(name)},
                    {"file", Utf16ToUtf8(PathToText(path.filename()))},
                    {"size", made ? std::filesystem::file_size(path, error) : 0},
                    {"sha256", Sha256OfFile(path)}});
  }
  return list;
}

Json RangesToJson(const ExamPaper& exam) {
  Json ranges = Json::array();
  for (std::size_t i = 0; i < kScoreRanges; ++i) {
    ranges.push_back({{"from", exam.scoreFrom[i]},
                      {"to", exam.scoreTo[i]},
                      {"score", Utf16ToUtf8(FormatScore(exam.scoreValue[i]))}});
  }
  return ranges;
}

Json QuestionToJson(const ExamQuestion& question, int number) {
  Json options = Json::array();
  for (const auto& option : question.options) options.push_back(Utf16ToUtf8(option));
  return {{"number", number},
          {"kind", KindName(question.kind)},
          {"kindValue", static_cast<int>(question.kind)},
          {"text", Utf16ToUtf8(question.text)},
          {"options", std::move(options)},
          {"answerLetters", Utf16ToUtf8(question.answerLetters)},
          {"answerMask", question.answerMask},
          {"answerText", Utf16ToUtf8(question.answerText)},
          {"essayAnswer", Utf16ToUtf8(question.essayAnswer)},
          {"oralFlag", question.oralFlag},
          {"attachments", AttachmentsToJson(question.attachmentNames, question.attachmentPaths)}};
}

}  // namespace

std::string KindName(QuestionKind kind) {
  switch (kind) {
    case QuestionKind::Choice:
      return "Choice";
    case QuestionKind::FillIn:
      return "FillIn";
    case QuestionKind::Essay:
      return "Essay";
    case QuestionKind::Oral:
      return "Oral";
    default:
      return Utf16ToUtf8(FormatInteger(static_cast<int>(kind)));
  }
}

std::vector<AttachedFile> AttachedFiles(const AttachmentList& names, const AttachmentList& paths) {
  std::vector<AttachedFile> files;
  for (std::size_t i = 0; i < kMaxAttachments; ++i) {
    if (!paths[i].empty()) files.push_back({names[i], TextToPath(paths[i])});
  }
  return files;
}

Json ExamToJson(const FrameSetExam& exam, const ExamReadOutcome& outcome) {
  Json questions = Json::array();
  for (int number = 1; number <= exam.questionCount; ++number) {
    questions.push_back(QuestionToJson(exam.Question(number), number));
  }
  return {{"title", Utf16ToUtf8(exam.title)},
          {"format", outcome.form.version->name},
          {"encoding", outcome.form.encoding == FieldEncoding::EightBit ? "8-bit" : "utf-16"},
          {"questionCount", exam.questionCount},
          {"randomMode", static_cast<int>(exam.randomMode)},
          {"scoreMode", static_cast<int>(exam.scoreMode)},
          {"boundaryQuestion", exam.boundaryQuestion},
          {"hasOralQuestion", exam.hasOralQuestion},
          {"firstOralQuestion", exam.firstOralQuestion},
          {"scoreRanges", RangesToJson(exam)},
          {"attachments", AttachmentsToJson(exam.examAttachmentNames, exam.examAttachmentPaths)},
          {"questions", std::move(questions)},
          {"truncated", outcome.endsEarly}};
}

}  // namespace quorvantis::cli
