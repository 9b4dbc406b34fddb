// SPDX-License-Identifier: MIT
#include "cli/form/ExamFromJson.h"

#include "cli/console/CommandError.h"
#include "cli/form/JsonNode.h"
#include "cli/form/KindNames.h"
#include "model/AnswerLetters.h"
#include "model/ExamFields.h"
#include "model/LongAnswerFlags.h"
#include "model/document/ExamServices.h"
#include "text/PathText.h"
#include "text/Utf.h"

namespace quorvantis::cli {
namespace {

/// Takes the fields that a description contains. It may leave out derived values, and may give the kind in
/// two ways (TakeKind).
class FieldsFromJson {
 public:
  explicit FieldsFromJson(const JsonNode& node) : node_(node) {}

  template <class Value>
  void operator()(const FieldRow& field, Value& value) const {
    const bool isTaken = field.name != ExamFieldName::QuestionCount &&
                         field.name != ExamFieldName::AnswerMask && field.name != ExamFieldName::Kind;
    if (isTaken && node_.Has(field.key)) Take(node_.Member(field.key), value);
  }

 private:
  static void Take(const JsonNode& node, std::u16string& text) { text = node.Text(); }
  static void Take(const JsonNode& node, OptionTexts& options) {
    const std::vector<JsonNode> texts = node.Elements(options.size());
    for (std::size_t i = 0; i < texts.size(); ++i) options[i] = texts[i].Text();
  }
  static void Take(const JsonNode& node, float& score) { score = node.Score(); }
  template <class Integer>
  static void Take(const JsonNode& node, Integer& number) {
    number = static_cast<Integer>(node.Integer());
  }

  const JsonNode& node_;
};

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
    VisitScoreRange(i, FieldsFromJson(ranges[i]), exam);
  }
}

/// By name or, if there is none, by number.
void TakeKind(const JsonNode& node, QuestionKind& kind) {
  if (!node.Has("kind")) return TakeNumber(node, FieldNamed(ExamFieldName::Kind).key, kind);
  const JsonNode name = node.Member("kind");
  const auto named = KindNamed(Utf16ToUtf8(name.Text()));
  if (!named) name.Fail("must be " + KindNameList());
  kind = *named;
}

void TakeQuestion(const JsonNode& node, const std::filesystem::path& baseFolder, ExamQuestion& question) {
  TakeKind(node, question.kind);
  VisitQuestionFields(FieldsFromJson(node), question);
  question.answerMask = AnswerLettersToMask(question.answerLetters);
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
    exam.Services().longAnswerFlags.SetIfLong(number, question.answerText);
  }
}

}  // namespace

void FillExam(FrameSetExam& exam, const nlohmann::json& description,
              const std::filesystem::path& baseFolder) {
  const JsonNode root(description, "");
  VisitPaperFields(FieldsFromJson(root), exam);
  VisitDocumentFields(FieldsFromJson(root), exam);
  TakeScoreRanges(root, exam);
  TakeAttachments(root, baseFolder, exam.examAttachmentNames, exam.examAttachmentPaths);
  TakeQuestions(root, baseFolder, exam);
}

}  // namespace quorvantis::cli
