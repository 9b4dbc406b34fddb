// SPDX-License-Identifier: MIT
#include "import/labels/LineText.h"
#include "import/lines/QuestionSigns.h"
#include "import/paper/PaperOutline.h"
#include "import/paper/PaperRewrite.h"
#include "import/paper/PreparedLabels.h"
#include "import/prepare/QuestionTails.h"
#include "import/prepare/Steps.h"

#include <algorithm>
#include <set>

namespace quorvantis {
namespace {

/// Lines of text without a blank one between them.
struct TextBlock {
  std::size_t firstLine = 0;
  std::size_t lines = 0;
  TextSpan span;
  bool asks = false;
};

/// Text between two tails: options, an answer, or both.
struct StemRegion {
  std::vector<TextBlock> blocks;
  bool followsAnswer = false;
  bool isAdjacent = false;  ///< no blank line before it
  bool hasTail = false;     ///< options or an answer after it
};

/// Finds where questions without numbers begin.
class StemSearch {
 public:
  StemSearch(const PaperText& text, TextSpan within, const PreparationContext& context)
      : text_(text), lines_(ClassifiedLines(text.characters, within, context)) {}

  /// Places of their first characters.
  std::vector<std::size_t> Starts() {
    const std::vector<StemRegion> regions = Regions();
    constexpr std::ptrdiff_t kFewestTails = 2;
    const auto tails = std::ranges::count_if(regions, &StemRegion::hasTail);
    if (tails < kFewestTails) {
      if (tails == 0 && !regions.empty()) AddBlocks(regions.front().blocks);
      return std::move(starts_);
    }
    for (std::size_t i = 0; i < regions.size(); ++i) AddRegion(regions[i], i == 0);
    return std::move(starts_);
  }

 private:
  static bool IsTail(LineKind kind) { return kind == LineKind::Option || kind == LineKind::Answer; }

  std::vector<StemRegion> Regions() const {
    std::vector<StemRegion> regions(1);
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      const LineKind kind = lines_[i].kind;
      if (kind == LineKind::Text) {
        AddLine(regions.back(), i);
      } else if (IsTail(kind)) {
        if (!regions.back().blocks.empty() || regions.size() == 1) {
          regions.back().hasTail = !regions.back().blocks.empty();
          regions.emplace_back();
        }
        regions.back().followsAnswer = kind == LineKind::Answer;
      }
    }
    return regions;
  }

  void AddLine(StemRegion& region, std::size_t line) const {
    const bool continues = line > 0 && lines_[line - 1].kind == LineKind::Text;
    const TextSpan span = lines_[line].span;
    if (!continues || region.blocks.empty()) {
      if (region.blocks.empty()) region.isAdjacent = line > 0 && IsTail(lines_[line - 1].kind);
      region.blocks.push_back({line, 1, span});
    } else {
      TextBlock& block = region.blocks.back();
      block.span.end = span.end;
      ++block.lines;
    }
    TextBlock& block = region.blocks.back();
    block.asks = block.asks || AsksSomething(text_, span);
  }

  void AddRegion(const StemRegion& region, bool isFirst) {
    std::size_t first = 0;
    const std::size_t count = region.blocks.size();
    if (count == 0) return;
    if (!region.hasTail) return AddAsking(region);
    // The rest of an answer of several lines.
    if (region.followsAnswer && region.isAdjacent && count > 1) first = 1;
    if (isFirst) return AddFirst(region);
    for (std::size_t i = first; i + 1 < count; ++i) {
      if (!region.blocks[i].asks) continue;
      Add(region.blocks[first]);
      first = i + 1;
    }
    Add(region.blocks[first]);
  }

  /// A title and instructions precede the first question.
  void AddFirst(const StemRegion& region) {
    const auto& blocks = region.blocks;
    for (std::size_t i = 0; i + 1 < blocks.size(); ++i) {
      if (blocks[i].asks && i > 0) Add(blocks[i]);
    }
    const TextBlock& last = blocks.back();
    const std::size_t line = blocks.size() > 1 ? last.firstLine : last.firstLine + last.lines - 1;
    AddLineStart(lines_[line].span);
  }

  /// What follows the last options.
  void AddAsking(const StemRegion& region) {
    for (std::size_t i = region.isAdjacent ? 1 : 0; i < region.blocks.size(); ++i) {
      if (region.blocks[i].asks) Add(region.blocks[i]);
    }
  }

  /// A paper without options: most of its blocks must ask something, and none be a page long.
  void AddBlocks(const std::vector<TextBlock>& blocks) {
    constexpr std::size_t kLongest = 1'500;
    constexpr std::ptrdiff_t kFewest = 2;
    constexpr std::size_t kFewestLines = 3;
    auto first = std::ranges::find_if(blocks, &TextBlock::asks);
    if (first == blocks.begin() && first != blocks.end() && HasNameField(*first))
      first = std::find_if(first + 1, blocks.end(), [](const TextBlock& block) { return block.asks; });
    const auto asking = std::count_if(first, blocks.end(), [](const TextBlock& block) { return block.asks; });
    const bool isLong =
        std::any_of(first, blocks.end(), [](const TextBlock& block) { return block.span.Size() > kLongest; });
    if (isLong || asking < kFewest || asking * 2 < blocks.end() - first) return;
    const std::set<std::size_t> counts = AskingLineCounts(blocks);
    std::for_each(first, blocks.end(), [this, &counts](const TextBlock& block) {
      if (block.asks || IsSentence(block) || (block.lines >= kFewestLines && counts.contains(block.lines)))
        Add(block);
    });
  }

  /// "Name: ______" in front of a paper is no question.
  bool HasNameField(const TextBlock& block) const {
    const std::u16string_view content = block.span.Of(text_.characters);
    for (std::size_t at = content.find_first_of(u":："); at != content.npos;
         at = content.find_first_of(u":：", at + 1)) {
      const std::size_t next = SkipBlanks(content, at + 1, content.size());
      if (next < content.size() && (content[next] == u'_' || content[next] == u'.')) return true;
    }
    return false;
  }

  /// What has as many lines as a block that asks something is a question, too: "It is", and what it may be.
  static std::set<std::size_t> AskingLineCounts(const std::vector<TextBlock>& blocks) {
    std::set<std::size_t> counts;
    for (const TextBlock& block : blocks) {
      if (block.asks) counts.insert(block.lines);
    }
    return counts;
  }

  /// A heading is none.
  bool IsSentence(const TextBlock& block) const {
    const std::u16string_view content = Trimmed(text_.characters, block.span).Of(text_.characters);
    constexpr std::u16string_view kEnds = u".。!！।…";
    return !content.empty() && kEnds.find(content.back()) != kEnds.npos;
  }

  void Add(const TextBlock& block) { AddLineStart(block.span); }
  void AddLineStart(TextSpan line) { starts_.push_back(SkipBlanks(text_.characters, line.begin, line.end)); }

  const PaperText& text_;
  std::vector<ClassifiedLine> lines_;
  std::vector<std::size_t> starts_;
};

}  // namespace

void step::Unnumbered(PaperText& text, const PreparationContext& context) {
  constexpr std::size_t kFewest = 2;
  const PaperOutline outline = OutlineOf(text, context);
  if (outline.questions.size() >= kFewest) return;
  const std::vector<std::size_t> starts =
      StemSearch(text, {0, outline.answerSection.begin}, context).Starts();
  if (starts.size() < kFewest) return;
  std::vector<PaperEdit> edits;
  for (const std::size_t start : starts) {
    const std::u16string number = PreparedNumber(static_cast<int>(edits.size()) + 1) + u" ";
    edits.push_back({{start, start}, InsertedText(number)});
  }
  ApplyEdits(text, std::move(edits));
}

}  // namespace quorvantis
