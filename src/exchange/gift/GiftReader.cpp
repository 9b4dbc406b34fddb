// SPDX-License-Identifier: MIT
#include "exchange/form/Blanks.h"
#include "exchange/form/ExchangeLimits.h"
#include "exchange/form/MoodleConventions.h"
#include "exchange/form/TextSource.h"
#include "exchange/gift/GiftAnswers.h"
#include "exchange/gift/GiftFormat.h"
#include "exchange/gift/GiftText.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/AsciiCase.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kCategory = u"$CATEGORY:";

/// Reads the blocks of a file.
class GiftExamReading {
 public:
  explicit GiftExamReading(ReadingTools& tools) : tools_(tools) {}

  ExchangedExam Read(std::u16string_view text) {
    for (const std::u16string& block : GiftBlocks(text)) {
      if (tools_.progress.IsCancelled()) break;
      std::u16string_view rest = Trimmed(block);
      while (rest.starts_with(u'$')) TakeCommand(rest);
      if (rest.empty()) continue;
      exam_.isCutShort = exam_.questions.size() >= kMaxReadQuestions;
      if (exam_.isCutShort) break;
      tools_.notes.Begin(++number_);
      ReadQuestion(rest);
    }
    tools_.notes.Begin(0);
    return std::move(exam_);
  }

 private:
  void TakeCommand(std::u16string_view& rest) {
    const std::size_t end = std::min(rest.find(u'\n'), rest.size());
    const std::u16string_view line = rest.substr(0, end);
    if (EqualsIgnoringAsciiCase(line.substr(0, kCategory.size()), kCategory))
      TakeTitle(PlainToExamText(TitleOfCategory(Trimmed(line.substr(kCategory.size())))));
    rest = Trimmed(rest.substr(end));
  }

  void TakeTitle(const std::u16string& title) {
    if (exam_.title.empty() && exam_.questions.empty()) {
      exam_.title = title;
    } else if (!title.empty() && title != exam_.title) {
      tools_.notes.Begin(0);
      tools_.notes.Tell(text_id::kExchangeOtherCategory, {Excerpt(title)});
    }
  }

  void ReadQuestion(std::u16string_view block) {
    SkipTitle(block);
    const std::size_t open = FindUnprotected(block, u"{");
    const std::size_t close = open == block.npos ? open : FindUnprotected(block, u"}", open);
    if (close == block.npos) {
      const bool isText = open == block.npos;
      return tools_.notes.Tell(isText ? text_id::kExchangeDescription : text_id::kExchangePartNotRead,
                               {Excerpt(block)});
    }
    ExchangedQuestion question;
    question.number = number_;
    std::u16string_view before = block.substr(0, open);
    GiftAnswers answers(TakeGiftFormat(before, GiftTextFormat::Moodle), tools_);
    const std::u16string_view after = Trimmed(block.substr(close + 1));
    std::u16string text(before);
    if (!after.empty()) {
      const bool isApart = block.substr(0, open).ends_with(u' ');
      const bool isFollowedApart = block.substr(close + 1).starts_with(u' ');
      text.append(isApart ? u" " : u"").append(kBlank).append(isFollowedApart ? u" " : u"").append(after);
    }
    question.text = answers.Text(text);
    if (answers.Read(block.substr(open + 1, close - open - 1), question)) {
      exam_.questions.push_back(std::move(question));
    } else {
      tools_.notes.Tell(text_id::kExchangePartNotRead, {Excerpt(block)});
    }
  }

  static void SkipTitle(std::u16string_view& block) {
    if (!block.starts_with(u"::")) return;
    const std::size_t end = FindUnprotectedWord(block.substr(2), u"::");
    if (end != block.npos) block = Trimmed(block.substr(end + 4));
  }

  ReadingTools& tools_;
  ExchangedExam exam_;
  int number_ = 0;
};

}  // namespace

bool LooksLikeGift(const ExchangeSource& source) {
  const std::u16string head = HeadText(source);
  for (const std::u16string& block : GiftBlocks(head)) {
    if (Trimmed(block).starts_with(kCategory)) return true;
    const std::size_t open = FindUnprotected(block, u"{");
    if (open == block.npos) continue;
    const std::size_t close = FindUnprotected(block, u"}", open);
    const std::u16string_view inside = Trimmed(std::u16string_view(block).substr(open + 1, close - open - 1));
    const bool isAnswer = inside.empty() || std::u16string_view(u"=~#TF").find(inside[0]) != inside.npos;
    if (close != block.npos && isAnswer) return true;
  }
  return false;
}

std::optional<ExchangedExam> GiftReader::Read(const ExchangeSource& source, ReadingTools& tools) {
  const auto text = ReadSourceText(source, tools);
  if (!text) return std::nullopt;
  return GiftExamReading(tools).Read(*text);
}

}  // namespace quorvantis
