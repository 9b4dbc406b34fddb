// SPDX-License-Identifier: MIT
#pragma once

#include <random>
#include <string>
#include <string_view>

namespace quorvantis::test {

/// Random patterns in the common syntax of both engines, and random texts that they may match.
class RandomPatterns {
 public:
  explicit RandomPatterns(unsigned seed) : random_(seed) {}

  int Flags() { return Below(4) | (Below(3) == 0 ? 8 : 0); }

  std::u16string Pattern() {
    std::u16string pattern = Sequence();
    while (Below(4) == 0) pattern += u"|" + (Below(6) == 0 ? std::u16string() : Sequence());
    return pattern;
  }

  std::u16string Subject() {
    std::u16string text;
    for (int length = Below(12); length > 0; --length)
      text += OneOf({u"a", u"a", u"b", u"b", u"c", u"A", u"B", u"1", u" ", u"\n"});
    if (Below(4) == 0) {  // as long as what searches leave out at once
      const std::u16string filler = OneOf({u"-", u"a", u"\n"});
      text.insert(static_cast<std::size_t>(Below(static_cast<int>(text.size()) + 1)),
                  std::u16string(static_cast<std::size_t>(Below(150)), filler[0]));
    }
    return text;
  }

 private:
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  std::u16string OneOf(std::initializer_list<std::u16string_view> texts) {
    return std::u16string(texts.begin()[Below(static_cast<int>(texts.size()))]);
  }

  std::u16string Sequence() {
    std::u16string pattern;
    for (int parts = 1 + Below(depth_ > 0 ? 2 : 3); parts > 0; --parts) {
      pattern += Marks() + (Below(6) == 0 ? Assertion() : Element() + Quantifier());
    }
    return pattern;
  }

  std::u16string Assertion() {
    if (depth_ < 3 && Below(2) == 0) return OneOf({u"(?=", u"(?!"}) + Inner() + u")";
    return OneOf(
        {u"^", u"$", u"\\b", u"\\B", u"\\A", u"\\z", u"(?<=a)", u"(?<!b)", u"(?<=ab|b)", u"(?<![ab]1)"});
  }

  std::u16string Quantifier() {
    if (Below(3) == 0) return {};
    if (Below(8) == 0) return Nothing() + u"{2}";
    const std::u16string mode = OneOf({u"", u"", u"?", u"+"});
    return Nothing() + OneOf({u"*", u"+", u"?", u"{1,2}", u"{0,2}", u"{2,}", u"{1,3}", u"{0,1}"}) +
           (mode.empty() ? mode : Nothing() + mode);
  }

  /// Elements without effect, in extended mode or in any mode.
  std::u16string Nothing() {
    if (Below(8) != 0) return {};
    return OneOf({u"(?#a)", u"\\Q\\E", u" ", u"#b\n"}) + Nothing();
  }

  std::u16string Marks() {
    if (Below(12) != 0) return Nothing();
    return Nothing() + OneOf({u"(?i)", u"(?-i)", u"(?x)", u"(?-x)", u"(?s-m)"}) + Nothing();
  }

  std::u16string Element() {
    switch (Below(depth_ < 3 ? 10 : 4)) {
      case 0:
        return OneOf({u"a", u"b", u"c", u"A", u"B", u"1", u"\\n"});
      case 1:
        return OneOf({u"(?:ab)", u"b", u"c", u"\\Qab\\E", u"\\Q(?#a)\\E"});
      case 2:
        return OneOf({u".", u"[ab]", u"[^a]", u"[a-c]", u"[b-]", u"[[:alpha:]]", u"[^\\w]"});
      case 3:
        return OneOf({u"\\w", u"\\d", u"\\s", u"\\W"});
      case 4:
        return OneOf({u"(?:", u"(?>", u"(?i:", u"(?s-m:", u"(?x:"}) + Inner() + u")";
      case 5:
        return groups_ == 0 ? u"a" : u"(?:\\" + Group() + u")";
      case 6:
        return groups_ == 0 ? u"b" : u"(?(" + Group() + u")" + Sequence() + u"|" + Sequence() + u")";
      default:
        ++groups_;
        return u"(" + Inner() + u")";
    }
  }

  std::u16string Inner() {
    ++depth_;
    std::u16string pattern = Pattern();
    --depth_;
    return pattern;
  }

  std::u16string Group() {
    return std::u16string(1, static_cast<char16_t>(u'1' + Below(groups_ < 9 ? groups_ : 9)));
  }

  std::mt19937 random_;
  int groups_ = 0;
  int depth_ = 0;
};

}  // namespace quorvantis::test
