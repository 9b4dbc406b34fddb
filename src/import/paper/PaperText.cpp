// SPDX-License-Identifier: MIT
#include "import/paper/PaperText.h"

#include <algorithm>

namespace quorvantis {

PaperText PaperText::Part(TextSpan span) const {
  const auto cut = [span](const auto& from, auto& to) {
    to.assign(from.begin() + static_cast<std::ptrdiff_t>(span.begin),
              from.begin() + static_cast<std::ptrdiff_t>(span.end));
  };
  PaperText part;
  cut(characters, part.characters);
  cut(emphasis, part.emphasis);
  cut(origins, part.origins);
  return part;
}

void PaperText::Append(const PaperText& text) {
  characters += text.characters;
  emphasis.insert(emphasis.end(), text.emphasis.begin(), text.emphasis.end());
  origins.insert(origins.end(), text.origins.begin(), text.origins.end());
}

void PaperText::AppendInserted(std::u16string_view text) {
  characters += text;
  emphasis.resize(characters.size(), 0);
  origins.resize(characters.size(), kInserted);
}

PaperText InsertedText(std::u16string_view text) {
  PaperText inserted;
  inserted.AppendInserted(text);
  return inserted;
}

void ApplyEdits(PaperText& text, std::vector<PaperEdit> edits) {
  if (edits.empty()) return;
  std::ranges::stable_sort(edits, {}, [](const PaperEdit& edit) { return edit.span.begin; });
  PaperText edited;
  std::size_t from = 0;
  for (const PaperEdit& edit : edits) {
    if (edit.span.begin < from) continue;
    edited.Append(text.Part({from, edit.span.begin}));
    edited.Append(edit.with);
    from = edit.span.end;
  }
  edited.Append(text.Part({from, text.Size()}));
  text = std::move(edited);
}

}  // namespace quorvantis
