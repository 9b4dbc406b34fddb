// SPDX-License-Identifier: MIT
#include "import/paper/PaperOutline.h"
#include "import/paper/PaperRewrite.h"
#include "import/paper/PreparedLabels.h"
#include "import/prepare/PlainOptionLines.h"
#include "import/prepare/Steps.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace quorvantis {
namespace {

/// The questions that may have options without labels.
class PlainPaper {
 public:
  PlainPaper(const PaperText& text, const PaperOutline& outline) {
    for (const OutlinedQuestion& question : outline.questions) {
      if (question.HasOptions()) continue;
      found_.push_back(FindPlainOptions(text.characters, {question.label.end, question.answerLabel.begin}));
      if (found_.back().hasRoom) ++withRoom_;
    }
  }

  /// What one question alone shows may be chance: an essay may come with a list.
  std::vector<PlainOptionLines> Believable() const {
    constexpr std::size_t kFewest = 2;
    constexpr std::size_t kFewestCounted = 3;
    std::vector<PlainOptionLines> believable = WithAtLeast(PlainEvidence::Stem);
    const bool areMany = believable.size() * 2 > withRoom_ && believable.size() * 4 >= found_.size();
    if (believable.size() >= kFewest && areMany) return believable;
    believable = WithAtLeast(PlainEvidence::Count);
    const std::size_t count = MostFrequentCount(believable);
    std::erase_if(believable, [count](const auto& lines) { return lines.options.size() != count; });
    const bool areMost = believable.size() * 5 >= found_.size() * 4;
    return believable.size() >= kFewestCounted && areMost ? believable : std::vector<PlainOptionLines>();
  }

 private:
  std::vector<PlainOptionLines> WithAtLeast(PlainEvidence evidence) const {
    std::vector<PlainOptionLines> chosen;
    std::ranges::copy_if(found_, std::back_inserter(chosen),
                         [evidence](const auto& lines) { return lines.evidence >= evidence; });
    return chosen;
  }

  static std::size_t MostFrequentCount(const std::vector<PlainOptionLines>& questions) {
    std::array<std::size_t, 16> questionsWith{};
    for (const PlainOptionLines& lines : questions) {
      if (lines.options.size() < questionsWith.size()) ++questionsWith[lines.options.size()];
    }
    return static_cast<std::size_t>(std::ranges::max_element(questionsWith) - questionsWith.begin());
  }

  std::vector<PlainOptionLines> found_;  ///< of the questions without labelled options
  std::size_t withRoom_ = 0;             ///< of these, those that could have others
};

}  // namespace

void step::PlainOptions(PaperText& text, const PreparationContext& context) {
  const PaperOutline outline = OutlineOf(text, context);
  std::vector<PaperEdit> edits;
  for (const PlainOptionLines& question : PlainPaper(text, outline).Believable()) {
    for (std::size_t i = 0; i < question.options.size(); ++i) {
      const PlainOption& option = question.options[i];
      const std::u16string label = PreparedOption(i) + u" ";
      const TextSpan place =
          option.bullet.IsEmpty() ? TextSpan{option.labelPlace, option.labelPlace} : option.bullet;
      if (option.isWithinLine)
        edits.push_back({option.gap, InsertedText(LineEndNear(text.characters, option.gap.begin))});
      edits.push_back({place, Rewritten(text, place, label)});
    }
  }
  ApplyEdits(text, std::move(edits));
}

}  // namespace quorvantis
