// SPDX-License-Identifier: MIT
#include "cli/form/ExamJson.h"

#include "cli/form/KindNames.h"
#include "model/ExamFields.h"
#include "platform/digest/OpenSslDigest.h"
#include "text/NumberText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

namespace quorvantis::cli {
namespace {

using Json = nlohmann::ordered_json;

Json AttachmentsToJson(const AttachmentList& names, const AttachmentList& paths) {
  const OpenSslDigest digest;
  Json list = Json::array();
  for (const auto& [name, path] : ListedFiles(names, paths)) {
    std::error_code error;
    const bool made = std::filesystem::is_regular_file(path, error);
    list.push_back({{"name", Utf16ToUtf8(name)},
                    {"file", Utf16ToUtf8(PathToText(path.filename()))},
                    {"size", made ? std::filesystem::file_size(path, error) : 0},
                    {"sha256", digest.OfFile(path)}});
  }
  return list;
}

/// Writes fields under their keys.
class FieldsToJson {
 public:
  explicit FieldsToJson(Json& json) : json_(json) {}

  template <class Value>
  void operator()(const FieldRow& field, const Value& value) const {
    json_[field.key] = ToJson(value);
    // The mask is derived from the letters and comes after them.
    if (field.name == ExamFieldName::AnswerLetters) json_[FieldNamed(ExamFieldName::AnswerMask).key];
  }

 private:
  static Json ToJson(const std::u16string& text) { return Utf16ToUtf8(text); }
  static Json ToJson(const OptionTexts& options) {
    Json list = Json::array();
    for (const std::u16string& option : options) list.push_back(Utf16ToUtf8(option));
    return list;
  }
  static Json ToJson(float score) { return Utf16ToUtf8(FormatScore(score)); }
  template <class Integer>
  static Json ToJson(Integer number) {
    return static_cast<int>(number);
  }

  Json& json_;
};

Json RangesToJson(const ExamPaper& exam) {
  Json ranges = Json::array();
  for (std::size_t i = 0; i < kScoreRanges; ++i) {
    Json range;
    VisitScoreRange(i, FieldsToJson(range), exam);
    ranges.push_back(std::move(range));
  }
  return ranges;
}

Json QuestionToJson(const ExamQuestion& question, int number) {
  Json json{
      {"number", number}, {"kind", KindName(question.kind)}, {FieldNamed(ExamFieldName::Kind).key, nullptr}};
  VisitQuestionFields(FieldsToJson(json), question);
  json["attachments"] = AttachmentsToJson(question.attachmentNames, question.attachmentPaths);
  return json;
}

}  // namespace

std::vector<ListedFile> ListedFiles(const AttachmentList& names, const AttachmentList& paths) {
  std::vector<ListedFile> files;
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
  Json json{{FieldNamed(ExamFieldName::Title).key, nullptr},
            {"format", outcome.form.version->name},
            {"encoding", outcome.form.encoding == FieldEncoding::EightBit ? "8-bit" : "utf-16"}};
  VisitPaperFields(FieldsToJson(json), exam);
  VisitDocumentFields(FieldsToJson(json), exam);
  json["hasOralQuestion"] = exam.hasOralQuestion;
  json["firstOralQuestion"] = exam.firstOralQuestion;
  json["scoreRanges"] = RangesToJson(exam);
  json["attachments"] = AttachmentsToJson(exam.examAttachmentNames, exam.examAttachmentPaths);
  json["questions"] = std::move(questions);
  json["truncated"] = outcome.endsEarly;
  return json;
}

}  // namespace quorvantis::cli
