// SPDX-License-Identifier: MIT
#include "exchange/form/MoodleConventions.h"

#include "platform/texts/ExchangeTexts.h"

#include <array>

namespace quorvantis {

std::string RightShare(std::size_t rights) {
  constexpr std::array<const char*, 7> kShares{"0", "100", "50", "33.33333", "25", "20", "16.66667"};
  return kShares[rights < kShares.size() ? rights : kShares.size() - 1];
}

/// A blank in front keeps a slash at the begin apart from the one that divides the path.
std::u16string WithoutSlashes(std::u16string_view title) {
  std::u16string name;
  if (title.starts_with(u'/')) name.push_back(u' ');
  for (const char16_t unit : title) name.append(unit == u'/' ? 2 : 1, unit);
  return name;
}

std::u16string TitleOfCategory(std::u16string_view path) {
  std::u16string title;
  int depth = 0;
  bool isContext = false;  // the first part is "$course$" or the like
  for (std::size_t i = 0; i < path.size(); ++i) {
    if (path[i] != u'/') {
      title.push_back(path[i]);
    } else if (i + 1 < path.size() && path[i + 1] == u'/') {
      title.push_back(path[i++]);
    } else {
      isContext = isContext || (depth == 0 && title.starts_with(u'$'));
      title.clear();
      ++depth;
    }
  }
  const bool isTop = title == u"top" && depth == (isContext ? 1 : 0);
  const bool isOnlyContext = depth == 0 && title.starts_with(u'$') && title.ends_with(u'$');
  return isTop || isOnlyContext ? std::u16string() : title;
}

std::u16string WithProtectedStars(std::u16string_view answer) {
  std::u16string text;
  for (const char16_t unit : answer) {
    if (unit == u'*') text.push_back(u'\\');
    text.push_back(unit);
  }
  return text;
}

std::u16string WithoutProtectedStars(std::u16string_view answer, ExchangeNotes& notes) {
  std::u16string text;
  bool hasWildcard = false;
  for (std::size_t i = 0; i < answer.size(); ++i) {
    hasWildcard = hasWildcard || answer[i] == u'*';
    if (answer.substr(i).starts_with(u"\\*")) ++i;
    text.push_back(answer[i]);
  }
  if (hasWildcard) notes.Tell(text_id::kExchangeWildcard, {Excerpt(text)});
  return text;
}

}  // namespace quorvantis
