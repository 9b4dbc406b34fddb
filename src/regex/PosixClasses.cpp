// SPDX-License-Identifier: MIT
#include "regex/PosixClasses.h"

namespace quorvantis {
namespace {

struct NamedClass {
  std::u16string_view name;
  std::u16string_view ranges;  // pairs of first and last unit
};

using namespace std::string_view_literals;

constexpr NamedClass kClasses[] = {
    {u"alnum", u"09AZaz"},   {u"alpha", u"AZaz"},   {u"ascii", u"\0\x7F"sv}, {u"cntrl", u"\0\x1F\x7F\x7F"sv},
    {u"digit", u"09"},       {u"graph", u"!~"},     {u"lower", u"az"},       {u"print", u" ~"},
    {u"punct", u"!/:@[`{~"}, {u"space", u"\t\r  "}, {u"upper", u"AZ"},       {u"xdigit", u"09AFaf"},
    {u"blank", u"\t\t  "},
};

}  // namespace

CharacterSet PosixClass(std::u16string_view name) {
  CharacterSet set;
  for (const NamedClass& candidate : kClasses) {
    if (candidate.name != name) continue;
    for (std::size_t i = 0; i < candidate.ranges.size(); i += 2) {
      set.AddRange(candidate.ranges[i], candidate.ranges[i + 1]);
    }
  }
  return set;
}

CharacterSet DigitClass() {
  return PosixClass(u"digit");
}

CharacterSet SpaceClass() {
  return PosixClass(u"space");
}

CharacterSet WordClass() {
  CharacterSet set = PosixClass(u"alnum");
  set.Add(u'_');
  return set;
}

}  // namespace quorvantis
