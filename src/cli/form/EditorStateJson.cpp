// SPDX-License-Identifier: MIT
#include "cli/form/EditorStateJson.h"

#include "text/PathText.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

namespace quorvantis::cli {
namespace {

using Json = nlohmann::ordered_json;

template <class Texts>
Json ToList(const Texts& texts) {
  Json list = Json::array();
  for (const std::u16string& text : texts) list.push_back(Utf16ToUtf8(text));
  return list;
}

Json FormToJson(const QuestionEditor& editor) {
  const QuestionForm& form = editor.Form();
  Json checks = Json::array();
  for (const CheckState check : form.checks) checks.push_back(static_cast<int>(check));
  return {{"title", Utf16ToUtf8(form.title)},        {"text", Utf16ToUtf8(form.text)},
          {"options", ToList(form.options)},         {"checks", std::move(checks)},
          {"answer", Utf16ToUtf8(form.answer)},      {"essay", Utf16ToUtf8(form.essay)},
          {"random", static_cast<int>(form.random)}, {"randomCaption", Utf16ToUtf8(editor.RandomCaption())}};
}

}  // namespace

Json EditorStateToJson(const ExamEditor& editor) {
  const EditorState& state = editor.state;
  const AttachmentEditor& attachments = editor.attachments;
  const ExamQuestion& question = state.Current();
  return {{"currentQuestion", state.CurrentQuestion()},
          {"modified", state.Modified()},
          {"fileName", Utf16ToUtf8(PathToText(state.FileName()))},
          {"windowTitle", Utf16ToUtf8(state.WindowTitle())},
          {"currentKind", static_cast<int>(state.CurrentKind())},
          {"form", FormToJson(editor.questions)},
          {"questionList", ToList(attachments.QuestionList().names)},
          {"examList", ToList(attachments.ExamList().names)},
          {"questionListVisible", attachments.QuestionList().visible},
          {"examListVisible", attachments.ExamList().visible},
          {"oralToggleVisible", attachments.OralToggleVisible()},
          {"oralFlag", question.oralFlag},
          {"questionPaths", ToList(question.attachmentPaths)},
          {"examPaths", ToList(state.document.examAttachmentPaths)},
          {"examNames", ToList(state.document.examAttachmentNames)}};
}

}  // namespace quorvantis::cli
