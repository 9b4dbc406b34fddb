// SPDX-License-Identifier: MIT
#include "taking/CopiedQuestions.h"

#include "examfile/ExamFileWriter.h"
#include "examfile/SavingLosses.h"
#include "model/AnswerLetters.h"
#include "model/QuestionKinds.h"
#include "taking/PrivateServices.h"
#include "text/HtmlEscape.h"
#include "text/LineBreaks.h"
#include "text/NumberText.h"
#include "text/PathText.h"

#include <string_view>

namespace quorvantis {
namespace {

/// As text of a page, with its line ends and without control characters.
std::u16string ShownAsHtml(std::u16string_view text) {
  std::u16string html;
  for (const char16_t unit : EscapeHtml(WithLineEnds(text, u"\n"))) {
    if (unit == u'\n') {
      html += u"<br>";
    } else if (unit >= 0x20 || unit == u'\t') {
      html += unit;
    }
  }
  return html;
}

/// Calls `line` with the letter and the text of each option.
template <class Line>
void VisitOptions(const ExamQuestion& question, const Line& line) {
  if (!AnswerOf(question.kind).options) return;
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    const std::u16string& option = question.options[i];
    if (!option.empty()) line(std::u16string(1, OptionLetter(i)) + u". ", option);
  }
}

}  // namespace

std::error_code WriteQuestionsFile(const ExamServices& services, const std::u16string& title,
                                   const std::vector<CopiedQuestion>& questions,
                                   const std::filesystem::path& file) {
  CollectedMessages messages;
  LongAnswerFlags flags;
  ExamServices own = PrivateServices(services, services.applicationFolder, messages, flags);
  FrameSetExam exam(own);
  exam.title = title;
  int number = 0;
  for (const CopiedQuestion& copied : questions) {
    exam.Question(++number) = copied.whole.question;
    flags.Assign(number, copied.whole.longAnswer);
  }
  StoreWhole(exam);
  return ExamFileWriter(exam, own).Write(file);
}

std::uint64_t AttachedBytes(const std::vector<CopiedQuestion>& questions) {
  std::uint64_t bytes = 0;
  for (const CopiedQuestion& copied : questions) {
    for (const std::u16string& path : copied.whole.question.attachmentPaths) {
      std::error_code error;
      const auto size = path.empty() ? 0 : std::filesystem::file_size(TextToPath(path), error);
      if (!error) bytes += size;
    }
  }
  return bytes;
}

std::optional<MissingFile> FirstMissingFile(const std::vector<CopiedQuestion>& questions) {
  for (const auto& [number, whole] : questions) {
    for (std::size_t i = 0; i < kMaxAttachments; ++i) {
      std::error_code ignored;
      const bool isThere =
          std::filesystem::is_regular_file(TextToPath(whole.question.attachmentPaths[i]), ignored);
      if (whole.hasContent[i] && !isThere) return MissingFile{number, whole.question.attachmentNames[i]};
    }
  }
  return std::nullopt;
}

std::u16string QuestionsAsText(const std::vector<CopiedQuestion>& questions) {
  std::u16string text;
  for (const auto& [number, whole] : questions) {
    if (!text.empty()) text += u'\n';
    text += FormatInteger(number) + u". " + WithLineEnds(whole.question.text, u"\n") + u'\n';
    VisitOptions(whole.question, [&text](const std::u16string& letter, const std::u16string& option) {
      text += letter + WithLineEnds(option, u"\n") + u'\n';
    });
  }
  return text;
}

std::u16string QuestionsAsHtml(const std::vector<CopiedQuestion>& questions) {
  std::u16string html = u"<html><body>";
  for (const auto& [number, whole] : questions) {
    html += u"<p><b>" + FormatInteger(number) + u".</b> " + ShownAsHtml(whole.question.text);
    VisitOptions(whole.question, [&html](const std::u16string& letter, const std::u16string& option) {
      html += u"<br>" + letter + ShownAsHtml(option);
    });
    html += u"</p>";
  }
  return html + u"</body></html>";
}

}  // namespace quorvantis
