// SPDX-License-Identifier: MIT
#include "import/labels/LineText.h"
#include "import/paper/PaperOutline.h"
#include "import/paper/PaperRewrite.h"
#include "import/prepare/Steps.h"
#include "text/NumberText.h"

#include <algorithm>

namespace quorvantis {
namespace {

bool HasNoStem(const OutlinedQuestion& question) {
  constexpr std::size_t kFewestOptions = 3;
  return question.number > 0 && question.options && question.stem.IsEmpty() &&
         question.options->labels.size() >= kFewestOptions;
}

}  // namespace

void step::ClozeStems(PaperText& text, const PreparationContext& context) {
  constexpr std::ptrdiff_t kFewest = 2;
  const PaperOutline outline = OutlineOf(text, context.rules, context.isCancelled);
  // One question whose stem is a picture is no text with gaps.
  if (std::count_if(outline.questions.begin(), outline.questions.end(), HasNoStem) < kFewest) return;
  std::vector<PaperEdit> edits;
  for (const OutlinedQuestion& question : outline.questions) {
    if (!HasNoStem(question)) continue;
    const std::size_t first = Trimmed(text.characters, {question.label.end, question.whole.end}).begin;
    std::u16string stem = u"(" + FormatInteger(question.number) + u")";
    stem += LineEndNear(text.characters, first);
    edits.push_back({{first, first}, InsertedText(stem)});
  }
  ApplyEdits(text, std::move(edits));
}

}  // namespace quorvantis
