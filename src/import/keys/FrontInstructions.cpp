// SPDX-License-Identifier: MIT
#include "import/keys/FrontInstructions.h"

#include "import/keys/QuestionKey.h"
#include "import/labels/LineText.h"
#include "import/lines/FoldedText.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Beginnings of words that head instructions, in small letters.
constexpr std::u16string_view kInstructionWords[] = {
    u"instruction", u"direction",  u"hinweis",     u"anweisung", u"anleitung", u"consigne",    u"instruccion",
    u"instrucción", u"instruç",    u"istruzion",   u"instrukcj", u"uwag",      u"pokyn",       u"инструкц",
    u"указани",     u"правила",    u"вказівки",    u"інструкц",  u"οδηγί",     u"talimat",     u"açıklama",
    u"petunjuk",    u"hướng dẫn",  u"lưu ý",       u"anvisning", u"ohje",      u"útmutat",     u"instrucț",
    u"instrucţ",    u"הוראות",     u"הנחיות",      u"تعليمات",   u"ملاحظ",     u"راهنما",      u"निर्देश",
    u"নির্দেশ",      u"คำชี้แจง",     u"คำสั่ง",        u"注意",      u"须知",      u"須知",        u"说明",
    u"說明",        u"유의",       u"주의",        u"rules",     u"note",      u"please read", u"upute",
    u"navodil",     u"aanwijzing", u"voorschrift", u"maagizo",   u"panuto",    u"arahan",
};

bool IsPlainSentence(std::u16string_view text, const OutlinedQuestion& question) {
  const std::u16string_view body = FirstLineOf(text, {question.label.end, question.whole.end}).Of(text);
  constexpr std::u16string_view kAsking = u"?？؟";
  return !question.HasOptions() && question.answer.IsEmpty() && body.find(u"___") == body.npos &&
         body.find_first_of(kAsking) == body.npos;
}

}  // namespace

std::size_t NumberedInFront(std::u16string_view text, const PaperOutline& outline) {
  const auto& questions = outline.questions;
  constexpr std::size_t kMost = 20;
  std::size_t count = 0;
  while (count < questions.size() && questions[count].number == static_cast<int>(count) + 1 && count <= kMost)
    ++count;
  if (count < 2 || count > kMost || count == questions.size() || questions[count].number != 1) return 0;
  for (std::size_t i = 0; i < count; ++i) {
    if (!IsPlainSentence(text, questions[i])) return 0;
  }
  const auto rest = questions.begin() + static_cast<std::ptrdiff_t>(count);
  const auto choices = std::count_if(rest, questions.end(), [](const auto& one) { return one.HasOptions(); });
  return choices >= 2 && choices * 2 >= questions.end() - rest ? count : 0;
}

bool AnnouncesInstructions(std::u16string_view front) {
  constexpr std::size_t kNear = 400;
  const std::u16string_view end = front.substr(front.size() - std::min(front.size(), kNear));
  const std::u16string folded = Folded(end);
  return std::any_of(std::begin(kInstructionWords), std::end(kInstructionWords),
                     [&folded](std::u16string_view word) { return folded.find(word) != folded.npos; });
}

}  // namespace quorvantis
