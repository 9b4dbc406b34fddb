// SPDX-License-Identifier: MIT
#include "exchange/GiftText.h"

#include "exchange/GiftFormat.h"
#include "exchange/TextSource.h"

namespace quorvantis {
namespace {

constexpr std::u16string_view kBraces = u"{}";

/// Whether the last brace of a block opens.
bool EndsOpen(std::u16string_view block) {
  bool isOpen = false;
  for (std::size_t at = FindUnprotected(block, kBraces); at != block.npos;
       at = FindUnprotected(block, kBraces, at + 1))
    isOpen = block[at] == u'{';
  return isOpen;
}

bool ClosesFirst(std::u16string_view block) {
  const std::size_t at = FindUnprotected(block, kBraces);
  return at != block.npos && block[at] == u'}';
}

}  // namespace

std::size_t FindUnprotected(std::u16string_view text, std::u16string_view wanted, std::size_t from) {
  for (std::size_t i = from; i < text.size(); ++i) {
    if (text[i] == u'\\') {
      ++i;
    } else if (wanted.find(text[i]) != wanted.npos) {
      return i;
    }
  }
  return text.npos;
}

std::size_t FindUnprotectedWord(std::u16string_view text, std::u16string_view word) {
  for (std::size_t at = FindUnprotected(text, word.substr(0, 1)); at != text.npos;
       at = FindUnprotected(text, word.substr(0, 1), at + 1)) {
    if (text.substr(at).starts_with(word)) return at;
  }
  return text.npos;
}

std::u16string Unprotected(std::u16string_view text) {
  std::u16string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t next = i + 1 < text.size() ? text[i + 1] : u' ';
    if (text[i] == u'\\' && next == u'n') {
      plain.push_back(u'\n');
      ++i;
    } else if (text[i] == u'\\' && kGiftSpecial.find(next) != kGiftSpecial.npos) {
      plain.push_back(text[++i]);
    } else {
      plain.push_back(text[i]);
    }
  }
  return plain;
}

std::vector<std::u16string> GiftBlocks(std::u16string_view text) {
  std::vector<std::u16string> blocks(1);
  for (const std::u16string_view line : LinesOf(text)) {
    const std::u16string_view trimmed = Trimmed(line);
    if (trimmed.starts_with(u"//")) continue;
    if (!trimmed.empty()) {
      blocks.back().append(line).push_back(u'\n');
    } else if (!blocks.back().empty()) {
      blocks.emplace_back();
    }
  }
  std::vector<std::u16string> joined;
  bool isOpen = false;
  for (const std::u16string& block : blocks) {
    if (isOpen && ClosesFirst(block)) {
      joined.back().append(u"\n").append(block);
      isOpen = EndsOpen(block);
      continue;
    }
    isOpen = EndsOpen(block);
    if (!Trimmed(block).empty()) joined.push_back(block);
  }
  return joined;
}

}  // namespace quorvantis
