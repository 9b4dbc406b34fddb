// SPDX-License-Identifier: MIT
// What can be wrong with the characters and the markup of a text.
#pragma once

#include "check/CheckRule.h"

namespace quorvantis {

/// A tag of an element that needs two, without the other.
class UnbalancedMarkup : public TextRule {
  void CheckText(const CheckedText& text, FindingList& findings) const override;
};

/// What looks like a tag and is none: a page does not show it.
class TakenForMarkup : public TextRule {
  void CheckText(const CheckedText& text, FindingList& findings) const override;
};

/// An element that works on the whole page, and so on other questions: "<style>" can blank them all.
class PageMarkup : public TextRule {
  void CheckText(const CheckedText& text, FindingList& findings) const override;
};

/// What is never closed and hides the rest of the page: "<!--", "<textarea>".
class SwallowingMarkup : public TextRule {
  void CheckText(const CheckedText& text, FindingList& findings) const override;
};

/// The sign for a character that could not be read, or half a character.
class LostCharacter : public TextRule {
  void CheckText(const CheckedText& text, FindingList& findings) const override;
};

/// A word of one alphabet with letters of another that look alike, as a slip of the keyboard leaves them: no
/// search finds it. Formulas ("μm", "ΔG") are none.
class MixedScripts : public TextRule {
  void CheckText(const CheckedText& text, FindingList& findings) const override;
};

}  // namespace quorvantis
