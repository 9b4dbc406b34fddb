// SPDX-License-Identifier: MIT
#include "import/labels/LineText.h"
#include "import/lines/BlankSearch.h"
#include "import/paper/PaperOutline.h"
#include "import/paper/PaperRewrite.h"
#include "import/prepare/Steps.h"

namespace quorvantis {
namespace {

/// From the number to the own answer, with the blanks that the labels took: they may be underlined. One
/// behind the number stays its own.
TextSpan WrittenBody(std::u16string_view text, const OutlinedQuestion& question) {
  TextSpan body{question.label.end, question.answerLabel.begin};
  while (body.begin > question.label.begin + 1 && IsBlank(text[body.begin - 1]) &&
         IsBlank(text[body.begin - 2]))
    --body.begin;
  body.end = SkipBlanks(text, body.end, text.size());
  return body;
}

}  // namespace

void step::BlankForms(PaperText& text, const PreparationContext& context) {
  std::vector<PaperEdit> edits;
  for (const OutlinedQuestion& question : OutlineOf(text, context).questions) {
    if (question.HasOptions()) continue;
    for (const FoundBlank& blank : BlanksIn(text, WrittenBody(text.characters, question)))
      edits.push_back({blank.span, Rewritten(text, blank.span, blank.with)});
  }
  ApplyEdits(text, std::move(edits));
}

}  // namespace quorvantis
