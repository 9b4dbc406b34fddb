// SPDX-License-Identifier: MIT
#include "exchange/gift/GiftText.h"

#include "exchange/form/TextSource.h"
#include "exchange/gift/GiftFormat.h"

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

/// The first block from `from` on that has a brace.
std::size_t NextWithBrace(const std::vector<std::u16string>& blocks, std::size_t from) {
  while (from < blocks.size() && FindUnprotected(blocks[from], kBraces) == std::u16string::npos) ++from;
  return from;
}

/// Cuts at blank lines, and before a title that stands below answers.
std::vector<std::u16string> BlocksByLines(std::u16string_view text) {
  std::vector<std::u16string> blocks(1);
  bool hasAnswers = false;
  for (const std::u16string_view line : LinesOf(text)) {
    const std::u16string_view trimmed = Trimmed(line);
    if (trimmed.starts_with(u"//")) continue;
    const bool isNext = trimmed.empty() || (hasAnswers && trimmed.starts_with(u"::"));
    if (isNext && !blocks.back().empty()) blocks.emplace_back();
    if (isNext) hasAnswers = false;
    if (trimmed.empty()) continue;
    blocks.back().append(line).push_back(u'\n');
    const std::size_t close = FindUnprotected(line, u"}");
    if (close != line.npos) hasAnswers = !EndsOpen(line);
  }
  return blocks;
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
  const std::vector<std::u16string> blocks = BlocksByLines(text);
  std::vector<std::u16string> joined;
  for (std::size_t i = 0; i < blocks.size();) {
    std::u16string block = blocks[i];
    bool isOpen = EndsOpen(blocks[i++]);
    while (isOpen) {
      const std::size_t end = NextWithBrace(blocks, i);
      if (end == blocks.size() || !ClosesFirst(blocks[end])) break;
      while (i <= end) block.append(u"\n").append(blocks[i++]);
      isOpen = EndsOpen(blocks[end]);
    }
    if (!Trimmed(block).empty()) joined.push_back(std::move(block));
  }
  return joined;
}

}  // namespace quorvantis
